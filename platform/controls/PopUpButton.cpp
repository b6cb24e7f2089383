// SPDX-License-Identifier: Apache-2.0
#include "PopUpButton.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

namespace platform {
inline namespace controls {

namespace {

constexpr int tagRole = Qt::UserRole;

/// Draws the items of the open pop-up with their pictures in the size that the button sets.
class PictureItemDelegate : public QStyledItemDelegate {
public:
    PictureItemDelegate(QSize pictureSize, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_pictureSize(pictureSize)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        constexpr int margin = 4;
        return m_pictureSize + QSize(2 * margin, 2 * margin);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->decorationSize = m_pictureSize;
        option->decorationAlignment = Qt::AlignCenter;
    }

private:
    QSize m_pictureSize;
};

} // namespace

PopUpButton::PopUpButton(QWidget *parent)
    : QComboBox(parent)
{
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this] { assignTags(); });
}

QStringList PopUpButton::itemTags() const
{
    QStringList tags;
    for (int position = 0; position < count(); ++position)
        tags.append(QString::number(tagOfItem(position)));
    return tags;
}

void PopUpButton::setItemTags(const QStringList &tags)
{
    m_tags = tags;
    assignTags();
}

void PopUpButton::assignTags()
{
    for (int position = 0; position < count() && position < m_tags.size(); ++position)
        setItemData(position, m_tags.at(position).toInt(), tagRole);
}

int PopUpButton::tagOfItem(int position) const
{
    return itemData(position, tagRole).toInt();
}

int PopUpButton::indexOfItemWithTag(int tag) const
{
    return findData(tag, tagRole);
}

bool PopUpButton::selectItemWithTag(int tag)
{
    const int position = indexOfItemWithTag(tag);
    if (position < 0)
        return false;
    setCurrentIndex(position);
    return true;
}

void PopUpButton::chooseItem(int position)
{
    validateItems();
    const bool enabled = model()->flags(model()->index(position, modelColumn())) & Qt::ItemIsEnabled;
    if (!isEnabled() || !enabled)
        return;
    setCurrentIndex(position);
    Q_EMIT activated(position);
}

void PopUpButton::removeItemWithTitle(const QString &title)
{
    const int position = findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (position < 0)
        return;
    const bool selectedGoes = position == currentIndex();
    removeItem(position);
    if (selectedGoes)
        setCurrentIndex(count() > 0 ? 0 : -1);
}

void PopUpButton::validateItems()
{
    auto *const items = qobject_cast<QStandardItemModel *>(model());
    if (!items || !m_validator)
        return;
    for (int position = 0; position < count(); ++position)
        items->item(position)->setEnabled(m_validator(tagOfItem(position)));
}

void PopUpButton::setPopUpIconSize(QSize size)
{
    m_popUpIconSize = size;
    view()->setItemDelegate(new PictureItemDelegate(size, view()));
}

void PopUpButton::showPopup()
{
    validateItems();
    QComboBox::showPopup();
}

void PopUpButton::keyPressEvent(QKeyEvent *event)
{
    validateItems();
    QComboBox::keyPressEvent(event);
}

void PopUpButton::wheelEvent(QWheelEvent *event)
{
    validateItems();
    QComboBox::wheelEvent(event);
}

} // namespace controls
} // namespace platform
