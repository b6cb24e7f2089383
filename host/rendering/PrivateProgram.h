// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {
inline namespace rendering {

/// Returns the path of a program in the folder of the private libraries: that of the build tree, or else that
/// of the installation. The program may be missing.
QString privateProgram(const QString &name);

} // namespace rendering
} // namespace host
