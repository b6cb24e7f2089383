// SPDX-License-Identifier: Apache-2.0
#include "Intent.h"

#include <algorithm>

namespace dialogwalk {

namespace {

bool isSame(const QByteArray &name, const QByteArray &one, const QByteArray &other)
{
    // All pages have two names.
    const auto plain = [&](const QByteArray &value) {
        return name == "page-ranges" && value == "1-" ? QByteArray() : value;
    };
    return plain(one) == plain(other);
}

/// Whether any printer does so by itself: a switch that is off where there is none.
bool isDefault(const WalkedServer &server, const QString &destination, const QByteArray &name,
               const QByteArray &value)
{
    const QByteArray line = "*Default" + name + ": " + value + '\n';
    return server.ppd(destination, 0).contains(line);
}

bool has(const QByteArray &ppd, const QByteArray &keyword)
{
    return ppd.contains("*OpenUI *" + keyword + '/');
}

} // namespace

bool mayBeReplaced(const QByteArray &keyword, const QByteArray &paper)
{
    const QByteArray kind = paper.left(2);
    // The cutter cannot cut heat-shrink tube.
    if (kind == "HS")
        return keyword == "KvAutoTapeCut";
    // Flag labels fold around a cable: they are cut after each label or not at all.
    if (kind == "FL" && keyword.startsWith("Kv") && keyword != "KvMirror" && keyword != "KvCutLabel")
        return true;
    return keyword == "KvRemoveBlkSpace" && (kind == "DC" || kind == "AV" || kind == "FL");
}

void Intent::enter(const QString &destination, const OptionTexts &found)
{
    m_destination = destination;
    if (m_memories.contains(destination))
        return;
    OptionTexts texts = found;
    for (auto each = m_job.begin(); each != m_job.end(); ++each)
        texts.remove(each.key());
    m_memories[destination].texts = texts;
}

void Intent::choose(const OptionTexts &chosen)
{
    Memory &memory = m_memories[m_destination];
    for (auto each = chosen.begin(); each != chosen.end(); ++each) {
        memory.texts[each.key()] = each.value();
        memory.chosen.insert(each.key());
    }
}

void Intent::forget()
{
    m_memories.clear();
    m_job.clear();
}

OptionTexts Intent::wanted() const
{
    OptionTexts texts = withSpecialTape(m_memories.at(m_destination).texts);
    for (auto each = m_job.begin(); each != m_job.end(); ++each)
        texts[each.key()] = each.value();
    return texts;
}

QString Intent::reasonFor(const WalkedDialog &dialog, const QByteArray &name, const QByteArray &wanted,
                          const QByteArray &got) const
{
    const QByteArray ppd = dialog.server().ppd(dialog.destination());
    const bool isUsers = m_memories.at(m_destination).chosen.contains(name);
    const QString told = dialog.told();
    if (!has(ppd, name)) {
        // The option is missing in the new description.
        const bool isTold = !isUsers || isDefault(dialog.server(), dialog.destination(), name, wanted) ||
                            told.contains(QString::fromUtf8(name));
        return isTold && !ppd.isEmpty() ? QString()
                                        : QStringLiteral("no banner says that the printer lacks it");
    }
    if (!mayBeReplaced(name, dialog.options().value("PageSize")))
        return QStringLiteral("no rule replaces it");
    const host::PpdFile &file = dialog.setup().ppd();
    const QString keyword = QString::fromUtf8(name);
    const QString sentence =
        QStringLiteral(
            "\"%1\" cannot be \"%2\" with this paper and the other cut options; \"%3\" is used instead.")
            .arg(file.optionText(keyword), file.choiceText(keyword, QString::fromUtf8(wanted)),
                 file.choiceText(keyword, QString::fromUtf8(got)));
    return told.contains(sentence) ? QString() : QStringLiteral("no banner says so: ") + told;
}

QStringList Intent::broken(const WalkedDialog &dialog) const
{
    QStringList lines;
    const OptionTexts options = dialog.options();
    const OptionTexts all = wanted();
    for (auto each = all.begin(); each != all.end(); ++each) {
        const QByteArray got = options.value(each.key());
        if (isSame(each.key(), got, each.value()))
            continue;
        const QString reason = reasonFor(dialog, each.key(), each.value(), got);
        if (!reason.isEmpty())
            lines.append(QStringLiteral("%1 was chosen as \"%2\", the job has \"%3\"; %4")
                             .arg(QString::fromUtf8(each.key()), QString::fromUtf8(each.value()),
                                  QString::fromUtf8(got), reason));
    }
    return lines;
}

} // namespace dialogwalk
