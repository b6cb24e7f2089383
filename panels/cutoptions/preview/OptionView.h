// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Bundle.h>
#include <platform/Image.h>

#include <QAbstractButton>
#include <QPointer>
#include <QWidget>

#include <array>

class QPainter;

/// The picture beside the cut options that shows what the ticked boxes will do to the label.
///
/// Made by the panel in place of a placeholder, handed the panel's nine check boxes, and asked to
/// redraw whenever one of them may have changed. It reads the boxes afresh each time it draws and
/// changes nothing. A view serves one printer family and has that family's pictures only.
class OptionView13_v400_ : public QWidget {
    Q_OBJECT

public:
    static constexpr std::size_t DZPictureCount = 6;
    static constexpr std::size_t LXPictureCount = 22;

    /// A view of the given frame in the parent, with the pictures of its family from the bundle.
    /// The parent owns it. All pictures are read here, so that a package that is replaced later leaves none
    /// of them blank; one that the bundle lacks, or whose file is broken, stays empty.
    static OptionView13_v400_ *initWithFrame(const QRect &frame, const platform::Bundle &bundle, bool isDZ,
                                             QWidget *parent);

    /// Whether the view's origin is its top-left corner. It never is: pictures stand on the bottom edge.
    bool isFlipped() const { return false; }

    /// The picture for the boxes as they are now; null when the bundle lacks it.
    const platform::Image *targetDrawImage() const;

    /// Draws the picture at its natural size into the view's bottom-left corner; nothing, and no
    /// background, when there is none.
    void drawRect(QPainter &painter) const;

    /// The family. Setting it does not load the other family's pictures: the view then shows nothing.
    void setIsDZ(bool isDZ) { mIsDZ = isDZ; }
    bool isDZ() const { return mIsDZ; }

    // The panel's check boxes: borrowed, null until handed over and when they are gone. One that is not there
    // counts as off. Setting one does not redraw.
    void setCutEveryChkBx(const QAbstractButton *box) { mCutEveryChkBx = box; }
    const QAbstractButton *cutEveryChkBx() const { return mCutEveryChkBx; }
    void setCutAndEndChkBx(const QAbstractButton *box) { mCutAndEndChkBx = box; }
    const QAbstractButton *cutAndEndChkBx() const { return mCutAndEndChkBx; }
    void setMirrorPrintChkBx(const QAbstractButton *box) { mMirrorPrintChkBx = box; }
    const QAbstractButton *mirrorPrintChkBx() const { return mMirrorPrintChkBx; }
    void setAutoCutChkBx(const QAbstractButton *box) { mAutoCutChkBx = box; }
    const QAbstractButton *autoCutChkBx() const { return mAutoCutChkBx; }
    void setHalfCutChkBx(const QAbstractButton *box) { mHalfCutChkBx = box; }
    const QAbstractButton *halfCutChkBx() const { return mHalfCutChkBx; }
    void setChainPrintChkBx(const QAbstractButton *box) { mChainPrintChkBx = box; }
    const QAbstractButton *chainPrintChkBx() const { return mChainPrintChkBx; }
    void setSpecialTapeChkBx(const QAbstractButton *box) { mSpecialTapeChkBx = box; }
    const QAbstractButton *specialTapeChkBx() const { return mSpecialTapeChkBx; }
    void setRemoveBlkSpaceChkBx(const QAbstractButton *box) { mRemoveBlkSpaceChkBx = box; }
    const QAbstractButton *removeBlkSpaceChkBx() const { return mRemoveBlkSpaceChkBx; }
    /// Kept with the others; nothing asks for it back, as the cut mark has no part in the picture.
    void setCutMarkChkBx(const QAbstractButton *box) { mCutMarkChkBx = box; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    explicit OptionView13_v400_(QWidget *parent);

    void loadPictures(const platform::Bundle &bundle);
    std::size_t slotDZ() const;
    std::size_t slotLX() const;

    std::array<std::shared_ptr<const platform::Image>, DZPictureCount> mOptionImgDZ;
    std::array<std::shared_ptr<const platform::Image>, LXPictureCount> mOptionImgLX;
    bool mIsDZ = false;
    QPointer<const QAbstractButton> mCutEveryChkBx;
    QPointer<const QAbstractButton> mCutAndEndChkBx;
    QPointer<const QAbstractButton> mMirrorPrintChkBx;
    QPointer<const QAbstractButton> mAutoCutChkBx;
    QPointer<const QAbstractButton> mHalfCutChkBx;
    QPointer<const QAbstractButton> mChainPrintChkBx;
    QPointer<const QAbstractButton> mSpecialTapeChkBx;
    QPointer<const QAbstractButton> mRemoveBlkSpaceChkBx;
    QPointer<const QAbstractButton> mCutMarkChkBx;
};
