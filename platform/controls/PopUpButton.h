// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QComboBox>
#include <QStringList>

#include <functional>

namespace platform {
inline namespace controls {

/// A pop-up button whose items are identified by tags, and whose owner can disable items when the pop-up
/// opens.
///
/// In a layout file, the texts of the items are their titles, and the property itemTags lists their tags in
/// the same order.
class PopUpButton : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(QStringList itemTags READ itemTags WRITE setItemTags)
    Q_PROPERTY(QSize popUpIconSize READ popUpIconSize WRITE setPopUpIconSize)

public:
    /// Returns whether the item with the tag can be chosen now.
    using Validator = std::function<bool(int tag)>;

    explicit PopUpButton(QWidget *parent = nullptr);

    /// Returns the tags of the items in menu order, as strings.
    QStringList itemTags() const;
    /// Sets the tags of the items, in menu order. Tags of items that do not exist yet are set when the items
    /// are added, because a layout file may contain properties and items in either order.
    void setItemTags(const QStringList &tags);

    /// Returns the tag of the item at the position; 0 if there is no item or it has no tag.
    int tagOfItem(int position) const;
    /// Returns the tag of the selected item; 0 if none is selected.
    int selectedTag() const { return tagOfItem(currentIndex()); }
    /// Returns the position of the item with the tag; -1 if there is none.
    int indexOfItemWithTag(int tag) const;
    /// Selects the item with the tag without emitting activated(). If there is none, returns false and keeps
    /// the selection.
    bool selectItemWithTag(int tag);
    /// Chooses the item at the position as the user does, and emits activated(). Does nothing for a disabled
    /// item, for a position without an item, and while the button is disabled.
    void chooseItem(int position);
    /// Removes the item with this title; does nothing if there is none. If the item is selected, the
    /// selection moves to the first item.
    void removeItemWithTitle(const QString &title);

    /// Sets the validator, which is called for every item when the pop-up opens and before a key or the wheel
    /// changes the selection.
    void setValidator(Validator validator) { m_validator = std::move(validator); }
    /// Calls the validator now and disables the items that it rejects.
    void validateItems();

    /// The size of the items' pictures in the open pop-up; the closed button uses iconSize().
    void setPopUpIconSize(QSize size);
    QSize popUpIconSize() const { return m_popUpIconSize; }

    /// Validates the items and opens the pop-up.
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
