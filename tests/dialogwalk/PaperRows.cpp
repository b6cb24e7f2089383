// SPDX-License-Identifier: Apache-2.0
#include "PaperRows.h"

#include "Gestures.h"

#include <QListWidget>

#include <gtest/gtest.h>

namespace dialogwalk {

PaperRows::PaperRows(const WalkedDialog &dialog)
    : m_list(Gestures::visibleNamed<QListWidget>(&dialog.window(), QStringLiteral("Paper")))
{
    if (!m_list || !dialog.setup().hasPpd())
        return;
    for (const host::PpdPaper &paper : dialog.setup().ppd().papers()) {
        for (QListWidgetItem *const item : m_list->findItems(paper.text, Qt::MatchExactly))
            m_names[m_list->row(item)] = paper.name;
    }
}

std::optional<QByteArray> PaperRows::current() const
{
    const auto found = m_names.constFind(m_list->currentRow());
    return found == m_names.constEnd() ? std::nullopt : std::optional(*found);
}

QByteArray PaperRows::someOfKind(std::uint32_t number) const
{
    QMap<QByteArray, QList<QByteArray>> kinds;
    for (const QByteArray &name : m_names) {
        const QByteArray kind = name.left(2);
        const bool isTape = kind != "DC" && kind != "AV" && kind != "FL" && kind != "HS";
        kinds[isTape ? QByteArray() : kind].append(name);
    }
    const QList<QByteArray> kind = kinds.values().at(static_cast<qsizetype>(number) % kinds.size());
    return kind[static_cast<qsizetype>(number / 8) % kind.size()];
}

void PaperRows::click(const QByteArray &name) const
{
    const int row = m_names.key(name, -1);
    ASSERT_GE(row, 0) << name.constData();
    Gestures::clickRow(m_list, row);
    EXPECT_EQ(m_list->currentRow(), row);
}

} // namespace dialogwalk
