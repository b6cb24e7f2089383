// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTemporaryDir>

namespace test_support {

/// Where a program runs that is no user's: in an empty home of its own, which lasts as long as this object,
/// and without a display unless the environment names one. To be made before the QApplication.
class TestHome {
public:
    TestHome();

private:
    QTemporaryDir m_folder;
};

} // namespace test_support
