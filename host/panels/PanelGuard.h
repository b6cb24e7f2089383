// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelBundle.h"
#include "PanelCallRecord.h"

#include <exception>
#include <functional>
#include <new>
#include <utility>

namespace host {
inline namespace panels {

/// Protects the dialog from the errors of a bundle: every call into its panels is recorded while it runs, and
/// a bundle that has thrown an exception is not called again. Its options are then left to the dialog.
class PanelGuard {
public:
    /// Creates a guard for the bundle in this folder.
    explicit PanelGuard(QString bundle)
        : m_bundle(std::move(bundle))
    {
    }

    /// The bundle's folder.
    const QString &bundle() const { return m_bundle; }
    /// Why the bundle is not called any more; absent while it works.
    const std::optional<BundleError> &error() const { return m_error; }
    /// Sets the function that is called once when the bundle fails; may be empty. It is called in the middle
    /// of an operation and must not destroy panels.
    void setFailedHook(std::function<void()> hook) { m_failed = std::move(hook); }

    /// Makes the call, which returns its result. The name is that of the called function. Returns the
    /// fallback if the call throws an exception, or if the bundle has failed before.
    template<typename Value, typename Function>
    Value call(const char *name, Value fallback, Function &&function)
    {
        if (m_error)
            return fallback;
        try {
            const PanelCallRecord::Call recorded(PanelCallRecord::ofProcess(), m_bundle, name);
            return std::forward<Function>(function)();
        } catch (const std::bad_alloc &) {
            // Not an error of the bundle: the program ends.
            throw;
        } catch (const std::exception &exception) {
            fail(name, QString::fromUtf8(exception.what()));
        } catch (...) {
            fail(name, QString());
        }
        return fallback;
    }

    /// Makes a call without a result.
    template<typename Function>
    void run(const char *name, Function &&function)
    {
        call(name, true, [&] {
            std::forward<Function>(function)();
            return true;
        });
    }

private:
    void fail(const char *name, const QString &reason);

    QString m_bundle;
    std::optional<BundleError> m_error;
    std::function<void()> m_failed;
};

} // namespace panels
} // namespace host
