// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QComboBox>
#include <QStringList>

#include <functional>

namespace platform {
inline namespace controls {

/// A pop-up button whose items are known by tags, and whose items may be greyed by their owner at the
/// moment the pop-up opens.
///
/// In a layout file the items' texts are their titles, and the property itemTags lists their tags in
/// the same order.
class PopUpButton : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(QStringList itemTags READ itemTags WRITE setItemTags)
    Q_PROPERTY(QSize popUpIconSize READ popUpIconSize WRITE setPopUpIconSize)

public:
    /// Answers whether the item with that tag can be chosen now.
    using Validator = std::function<bool(int tag)>;

    explicit PopUpButton(QWidget *parent = nullptr);

    /// The tags of the items in menu order, as texts.
    QStringList itemTags() const;
    /// Gives the items their tags, in menu order. Tags for items that are not there yet wait for them,
    /// since a layout file may name properties and items in either order.
    void setItemTags(const QStringList &tags);

    /// The tag of an item; 0 for a position without an item or an item without a tag.
    int tagOfItem(int position) const;
    /// The tag of the selected item; 0 when none is selected.
    int selectedTag() const { return tagOfItem(currentIndex()); }
    /// The position of the item with the tag, or -1.
    int indexOfItemWithTag(int tag) const;
    /// Selects the item with the tag without telling anybody; false, with the selection as it was,
    /// when there is none.
    bool selectItemWithTag(int tag);
    /// Chooses the item at the position as the user does: activated() follows. Does nothing for a greyed
    /// item, a position without one, and while the button is disabled.
    void chooseItem(int position);
    /// Removes the item of that title; does nothing when there is none.
    void removeItemWithTitle(const QString &title);

    /// Whoever decides which items can be chosen. Asked for every item when the pop-up opens and before
    /// a key or the wheel steps through the items.
    void setValidator(Validator validator) { m_validator = std::move(validator); }
    /// Asks the validator now and greys the items that it refuses.
    void validateItems();

    /// The size of the items' pictures in the open pop-up; the closed button uses iconSize().
    void setPopUpIconSize(QSize size);
    QSize popUpIconSize() const { return m_popUpIconSize; }

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void assignTags();

    QStringList m_tags;
    Validator m_validator;
    QSize m_popUpIconSize;
};

} // namespace controls
} // namespace platform
