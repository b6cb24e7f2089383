// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsServer.h>

#include <QByteArray>
#include <QMap>

/// Returns the job's attributes on the server as text, without those that differ between any two jobs
/// (number, times, states).
QMap<QByteArray, QByteArray> jobAttributes(const host::CupsServer &server, int jobId);

/// Returns the queue's defaults for jobs, "copies-default" and so on.
QMap<QByteArray, QByteArray> queueDefaults(const host::CupsServer &server, const QString &queue);
