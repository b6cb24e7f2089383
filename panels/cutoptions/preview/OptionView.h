// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Bundle.h>
#include <platform/Image.h>
#include <table/OptionTable.h>

#include <QAbstractButton>
#include <QPointer>
#include <QWidget>

#include <array>

class QPainter;

/// The picture beside the cut options that shows what the checked boxes do to the label.
///
/// The panel inserts the view in place of a placeholder, passes its check boxes, and requests an update when
/// one of them may have changed. The view reads the boxes whenever it draws, and changes nothing. It has the
/// pictures of one printer family only.
class OptionView13_v400_ : public QWidget {
    Q_OBJECT

public:
    /// The number of pictures for printers of paper labels.
    static constexpr std::size_t DZPictureCount = 6;
    /// The number of pictures for printers of tape.
    static constexpr std::size_t LXPictureCount = 22;

    /// Makes a view in the parent, which owns it. The frame is in the parent's coordinates. Reads all
    /// pictures of the family from the bundle, so that none is missing when the package is replaced later; a
    /// picture that the bundle does not contain or whose file is invalid stays empty.
    static OptionView13_v400_ *initWithFrame(const QRect &frame, const platform::Bundle &bundle, bool isDZ,
                                             QWidget *parent);

    /// Whether the origin of the view is its top-left corner. Always false: pictures are aligned with the
    /// bottom edge.
    bool isFlipped() const { return false; }

    /// The picture for the current states of the boxes; null if the bundle does not contain it. The view owns
    /// it.
    const platform::Image *targetDrawImage() const;

    /// Draws the picture in its natural size into the bottom-left corner of the view. Draws no background,
    /// and nothing without a picture.
    void drawRect(QPainter &painter) const;

    /// Sets the printer family. Does not load the pictures of the other family: the view then shows nothing.
    void setIsDZ(bool isDZ) { mIsDZ = isDZ; }
    /// Whether the printer prints on paper labels rather than on tape.
    bool isDZ() const { return mIsDZ; }

    /// Sets the panel's check box of an option; null for none, which counts as off. The view does not own the
    /// box. Does not redraw the view.
    void setBox(OptionKind kind, const QAbstractButton *button)
    {
        mBoxes[static_cast<std::size_t>(kind)] = button;
    }
    /// The check box of the option; null before it is set and after it is deleted.
    const QAbstractButton *box(OptionKind kind) const { return mBoxes[static_cast<std::size_t>(kind)]; }

    // setBox() and box() by the names of the boxes.

    /// Sets the cut-every box.
    void setCutEveryChkBx(const QAbstractButton *button) { setBox(OptionKind::CutLabel, button); }
    /// The cut-every box; null without one.
    const QAbstractButton *cutEveryChkBx() const { return box(OptionKind::CutLabel); }
    /// Sets the cut-at-end box.
    void setCutAndEndChkBx(const QAbstractButton *button) { setBox(OptionKind::CutAtEnd, button); }
    /// The cut-at-end box; null without one.
    const QAbstractButton *cutAndEndChkBx() const { return box(OptionKind::CutAtEnd); }
    /// Sets the mirror-printing box.
    void setMirrorPrintChkBx(const QAbstractButton *button) { setBox(OptionKind::Mirror, button); }
    /// The mirror-printing box; null without one.
    const QAbstractButton *mirrorPrintChkBx() const { return box(OptionKind::Mirror); }
    /// Sets the auto-cut box.
    void setAutoCutChkBx(const QAbstractButton *button) { setBox(OptionKind::AutoCut, button); }
    /// The auto-cut box; null without one.
    const QAbstractButton *autoCutChkBx() const { return box(OptionKind::AutoCut); }
    /// Sets the half-cut box.
    void setHalfCutChkBx(const QAbstractButton *button) { setBox(OptionKind::HalfCut, button); }
    /// The half-cut box; null without one.
    const QAbstractButton *halfCutChkBx() const { return box(OptionKind::HalfCut); }
    /// Sets the chain-printing box.
    void setChainPrintChkBx(const QAbstractButton *button) { setBox(OptionKind::ChainPrint, button); }
    /// The chain-printing box; null without one.
    const QAbstractButton *chainPrintChkBx() const { return box(OptionKind::ChainPrint); }
    /// Sets the special-tape box.
    void setSpecialTapeChkBx(const QAbstractButton *button) { setBox(OptionKind::SpecialTape, button); }
    /// The special-tape box; null without one.
    const QAbstractButton *specialTapeChkBx() const { return box(OptionKind::SpecialTape); }
    /// Sets the remove-blank-space box.
    void setRemoveBlkSpaceChkBx(const QAbstractButton *button) { setBox(OptionKind::RemoveBlkSpace, button); }
    /// The remove-blank-space box; null without one.
    const QAbstractButton *removeBlkSpaceChkBx() const { return box(OptionKind::RemoveBlkSpace); }
    /// Sets the cut-mark box. It is part of no picture.
    void setCutMarkChkBx(const QAbstractButton *button) { setBox(OptionKind::CutMark, button); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    explicit OptionView13_v400_(QWidget *parent);

    void loadPictures(const platform::Bundle &bundle);
    /// Whether the option's box is checked. A box that the user cannot see counts as off; a disabled one
    /// counts.
    bool isOn(OptionKind kind) const;
    std::size_t slotDZ() const;
    std::size_t slotLX() const;

    std::array<std::shared_ptr<const platform::Image>, DZPictureCount> mOptionImgDZ;
    std::array<std::shared_ptr<const platform::Image>, LXPictureCount> mOptionImgLX;
    bool mIsDZ = false;
    std::array<QPointer<const QAbstractButton>, OptionCount> mBoxes;
};
