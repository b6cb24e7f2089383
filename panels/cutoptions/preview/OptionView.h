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
    /// The number of pictures of the family of paper-label printers and of the family of tape printers.
    static constexpr std::size_t DZPictureCount = 6;
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

    /// Whether the printer prints on paper labels (true) or on tape (false). Setting it does not load the
    /// pictures of the other family: the view then shows nothing.
    void setIsDZ(bool isDZ) { mIsDZ = isDZ; }
    bool isDZ() const { return mIsDZ; }

    /// The panel's check box of an option. The view does not own it. Null before it is set and after it is
    /// deleted; a missing box counts as off. Setting a box does not redraw the view.
    void setBox(OptionKind kind, const QAbstractButton *button)
    {
        mBoxes[static_cast<std::size_t>(kind)] = button;
    }
    const QAbstractButton *box(OptionKind kind) const { return mBoxes[static_cast<std::size_t>(kind)]; }

    // The same by the names of the boxes.
    void setCutEveryChkBx(const QAbstractButton *button) { setBox(OptionKind::CutLabel, button); }
    const QAbstractButton *cutEveryChkBx() const { return box(OptionKind::CutLabel); }
    void setCutAndEndChkBx(const QAbstractButton *button) { setBox(OptionKind::CutAtEnd, button); }
    const QAbstractButton *cutAndEndChkBx() const { return box(OptionKind::CutAtEnd); }
    void setMirrorPrintChkBx(const QAbstractButton *button) { setBox(OptionKind::Mirror, button); }
    const QAbstractButton *mirrorPrintChkBx() const { return box(OptionKind::Mirror); }
    void setAutoCutChkBx(const QAbstractButton *button) { setBox(OptionKind::AutoCut, button); }
    const QAbstractButton *autoCutChkBx() const { return box(OptionKind::AutoCut); }
    void setHalfCutChkBx(const QAbstractButton *button) { setBox(OptionKind::HalfCut, button); }
    const QAbstractButton *halfCutChkBx() const { return box(OptionKind::HalfCut); }
    void setChainPrintChkBx(const QAbstractButton *button) { setBox(OptionKind::ChainPrint, button); }
    const QAbstractButton *chainPrintChkBx() const { return box(OptionKind::ChainPrint); }
    void setSpecialTapeChkBx(const QAbstractButton *button) { setBox(OptionKind::SpecialTape, button); }
    const QAbstractButton *specialTapeChkBx() const { return box(OptionKind::SpecialTape); }
    void setRemoveBlkSpaceChkBx(const QAbstractButton *button) { setBox(OptionKind::RemoveBlkSpace, button); }
    const QAbstractButton *removeBlkSpaceChkBx() const { return box(OptionKind::RemoveBlkSpace); }
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
