// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripOracle.h"

#include <tests/samples/Sandbox.h>

namespace dialogwalk {

/// The document that is printed, and what is known of its pages without reading it.
class SampleLabels {
public:
    SampleLabels();

    const QString &path() const { return m_path; }
    const std::vector<PageFacts> &pages() const { return m_pages; }

private:
    Sandbox m_sandbox;
    QString m_path;
    std::vector<PageFacts> m_pages;
};

} // namespace dialogwalk
