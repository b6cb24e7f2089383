// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEPlugIn.h>

#include <QObject>

namespace rollcutter {

/// The factory that the library of the bundle exports.
class RollCutterFactory : public QObject, public PDEPlugInFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInFactory_iid FILE "bundle.json")
    Q_INTERFACES(PDEPlugInFactory)

public:
    std::unique_ptr<PDEPlugIn> createPlugIn() override;
};

} // namespace rollcutter
