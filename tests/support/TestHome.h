// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTemporaryDir>

namespace test_support {

/// An environment without a user's settings: an empty home folder that exists for the lifetime of the object,
/// and no display unless the environment names one. Must be created before the QApplication.
class TestHome {
public:
    TestHome();

private:
    QTemporaryDir m_folder;
};

} // namespace test_support
