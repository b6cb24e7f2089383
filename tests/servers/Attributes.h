// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsServer.h>

#include <QByteArray>
#include <QMap>

/// What the server says of a job that anybody has set: its attributes as text, without those that tell
/// one job from another (number, times, states).
QMap<QByteArray, QByteArray> jobAttributes(const host::CupsServer &server, int jobId);

/// What the queue does to jobs by itself, "copies-default" and so on.
QMap<QByteArray, QByteArray> queueDefaults(const host::CupsServer &server, const QString &queue);
