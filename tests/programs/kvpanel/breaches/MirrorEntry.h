// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEPlugIn.h>

#include <QObject>
#include <QtPlugin>

/// The factory of a bundle with one planted breach.
class MirrorEntry : public QObject, public PDEPlugInFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TEST_IID FILE TEST_METADATA)
    Q_INTERFACES(PDEPlugInFactory)

public:
    std::unique_ptr<PDEPlugIn> createPlugIn() override;
};
