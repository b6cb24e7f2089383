// SPDX-License-Identifier: Apache-2.0
#include "TestHome.h"

namespace test_support {

TestHome::TestHome()
{
    if (!m_folder.isValid())
        qFatal("cannot make a home folder: %s", qPrintable(m_folder.errorString()));
    for (const char *const variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, m_folder.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace test_support
