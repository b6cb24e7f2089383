// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

namespace documents {

/// Six labels of 24 mm tape, 60 mm long, as people print them: two tags for a company's property, two for
/// cables, two for spice jars. Some leave much of their length blank, at one end or at both.
QByteArray sampleLabels();

} // namespace documents
