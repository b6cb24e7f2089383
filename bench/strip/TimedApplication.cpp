// SPDX-License-Identifier: Apache-2.0
#include "TimedApplication.h"

#include <QEvent>
#include <QMetaEnum>

namespace bench {

bool TimedApplication::notify(QObject *receiver, QEvent *event)
{
    // An event that sends others is busy with them, too; the receiver may be gone afterwards.
    if (m_depth > 0)
        return QApplication::notify(receiver, event);
    const QLatin1String name(receiver->metaObject()->className());
    const QEvent::Type type = event->type();
    ++m_depth;
    const auto begin = std::chrono::steady_clock::now();
    const bool result = QApplication::notify(receiver, event);
    const Duration took = std::chrono::steady_clock::now() - begin;
    --m_depth;
    if (took > m_longest) {
        m_longest = took;
        m_longestName = QLatin1String(QMetaEnum::fromType<QEvent::Type>().valueToKey(type)) + u' ' + name;
    }
    return result;
}

} // namespace bench
