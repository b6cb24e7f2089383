// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace test_support {

/// Returns the status of the path itself, without following links; all zero when it does not exist.
inline struct stat statusOf(const QString &path)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return status;
}

/// Returns the permission bits of the path, e.g. 0600.
inline unsigned permissionsOf(const QString &path)
{
    return statusOf(path).st_mode & 07777U;
}

inline void makeFifo(const QString &path)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
}

/// Creates the character device that is always full. Returns its path, or an absent value where devices
/// cannot be created or used.
inline std::optional<QString> makeFullDevice(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    if (::mknod(name.constData(), S_IFCHR | 0600, makedev(1, 7)) == 0) {
        const int descriptor = ::open(name.constData(), O_WRONLY); // NOLINT
        if (descriptor >= 0) {
            ::close(descriptor);
            return path;
        }
        ::unlink(name.constData());
    }
    return std::nullopt;
}

/// Sets the umask for the lifetime of the object.
class UmaskScope {
public:
    explicit UmaskScope(mode_t mask)
        : m_before(::umask(mask))
    {
    }
    ~UmaskScope() { ::umask(m_before); }
    UmaskScope(const UmaskScope &) = delete;
    UmaskScope &operator=(const UmaskScope &) = delete;

private:
    mode_t m_before;
};

/// Runs the whole process as a user other than root for the lifetime of the object. Has no effect when the
/// process does not run as root.
class OrdinaryUser {
public:
    static constexpr uid_t number = 65534;

    OrdinaryUser()
        : m_isRoot(::geteuid() == 0)
    {
        if (m_isRoot) {
            EXPECT_EQ(::seteuid(number), 0);
        }
    }
    ~OrdinaryUser()
    {
        if (m_isRoot) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    bool m_isRoot;
};

/// The character device that is always full: created for the test, or the system's where none can be created.
/// While the system's is used, the process does not run as root, so that a fault in the tested code cannot
/// replace it.
class FullDevice {
public:
    /// The path is where the test's own device is created.
    explicit FullDevice(const QString &path)
        : m_own(makeFullDevice(path))
    {
        if (!m_own)
            m_user.emplace();
    }
    QString path() const { return m_own.value_or(QStringLiteral("/dev/full")); }

private:
    std::optional<QString> m_own;
    std::optional<OrdinaryUser> m_user;
};

} // namespace test_support
