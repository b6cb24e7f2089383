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

/// What lies at the path itself, links not followed; all zero when there is nothing.
inline struct stat statusOf(const QString &path)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return status;
}

/// Who may do what with it: 0600.
inline unsigned permissionsOf(const QString &path)
{
    return statusOf(path).st_mode & 07777U;
}

inline void makeFifo(const QString &path)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
}

/// Makes the character device that is always full; nothing where devices cannot be made or are not usable.
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

/// The umask while the object lives.
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

/// The whole process is another user than root while the object lives; for who is none, nothing changes.
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

/// The character device that is always full: one of the test's own, or the system's where none can be made.
/// While the system's is used, the process is not root, so that a fault in what is tested cannot replace it.
class FullDevice {
public:
    /// The path is where the test's own is made.
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
