// SPDX-License-Identifier: Apache-2.0
#include "HostLookup.h"

#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <map>
#include <mutex>
#include <string>
#include <thread>

#include <pthread.h>
#include <sys/socket.h>

namespace host {
inline namespace cups {
inline namespace server {

HostLookup::Answer::Answer(int error, int systemError, addrinfo *addresses)
    : m_error(error)
    , m_systemError(systemError)
    , m_addresses(addresses)
{
}

std::optional<QString> HostLookup::Answer::error() const
{
    if (m_error == 0)
        return std::nullopt;
    return m_error == EAI_SYSTEM ? qt_error_string(m_systemError)
                                 : QString::fromLocal8Bit(gai_strerror(m_error));
}

std::optional<QByteArray> HostLookup::Answer::canonicalName() const
{
    if (!m_addresses || !m_addresses->ai_canonname)
        return std::nullopt;
    return QByteArray(m_addresses->ai_canonname);
}

/// One call of getaddrinfo(): its thread and all that wait for it own it together.
class HostLookup::Lookup {
public:
    /// Returns the lookup of the name that runs, or starts one.
    static std::shared_ptr<Lookup> running(const std::string &name)
    {
        static std::mutex mutex;
        static std::map<std::string, std::weak_ptr<Lookup>> all;
        const std::scoped_lock lock(mutex);
        std::erase_if(all, [](const auto &each) { return each.second.expired(); });
        std::shared_ptr<Lookup> lookup = all[name].lock();
        if (lookup && !lookup->hasEnded())
            return lookup;
        lookup = std::make_shared<Lookup>();
        all[name] = lookup;
        std::thread thread([lookup, name] { lookup->run(name.c_str()); });
        pthread_setname_np(thread.native_handle(), "kv-lookup");
        thread.detach();
        return lookup;
    }

    std::shared_ptr<const Answer> wait(std::chrono::milliseconds time, const std::stop_token &stop)
    {
        std::unique_lock lock(m_mutex);
        m_ended.wait_for(lock, stop, time, [this] { return m_answer != nullptr; });
        return m_answer;
    }

private:
    /// Runs on a thread that may outlive main(): uses the C library and this object only.
    void run(const char *name)
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, nullptr);
        // As libcups asks for the addresses of a print server.
        addrinfo hints = {};
        hints.ai_flags = AI_CANONNAME;
        hints.ai_family = AF_UNSPEC;
        hints.ai_socktype = SOCK_STREAM;
        addrinfo *found = nullptr;
        const int error = getaddrinfo(name, nullptr, &hints, &found);
        auto answer = std::make_shared<const Answer>(error, errno, error == 0 ? found : nullptr);
        const std::scoped_lock lock(m_mutex);
        m_answer = std::move(answer);
        m_ended.notify_all();
    }

    bool hasEnded()
    {
        const std::scoped_lock lock(m_mutex);
        return m_answer != nullptr;
    }

    std::mutex m_mutex;
    std::condition_variable_any m_ended;
    std::shared_ptr<const Answer> m_answer;
};

std::shared_ptr<const HostLookup::Answer>
HostLookup::find(const QByteArray &name, std::chrono::milliseconds time, const std::stop_token &stop)
{
    return Lookup::running(name.toStdString())->wait(time, stop);
}

} // namespace server
} // namespace cups
} // namespace host
