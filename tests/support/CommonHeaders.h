// SPDX-License-Identifier: Apache-2.0
#pragma once

// The headers that most tests include, precompiled once for all test programs. A test still includes what it
// uses.
#include <tests/support/QtPrinters.h>

#include <QApplication>
#include <QByteArray>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QSignalSpy>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>
