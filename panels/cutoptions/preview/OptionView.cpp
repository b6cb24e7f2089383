// SPDX-License-Identifier: Apache-2.0
#include "OptionView.h"

#include <QAbstractButton>
#include <QPainter>

namespace {

/// The paper-label family: every, end, mirror. The slots run none, end, every and then the same with
/// mirror writing.
constexpr std::array<const char *, OptionView13_v400_::DZPictureCount> picturesDZ = {
    "EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff", "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOffOffOn",  "EveryEndMirrorOffOnOn",  "EveryEndMirrorOnOffOn",
};

/// The tape family: automatic cut, half cut, chain printing, mirror; then special tape and mirror; then the
/// cut-mark pictures, which are the pop-up's and never drawn here.
constexpr std::array<const char *, OptionView13_v400_::LXPictureCount> picturesLX = {
    "AHCMOffOffOffOff", "AHCMOffOffOffOn", "AHCMOffOffOnOff", "AHCMOffOffOnOn",  "AHCMOffOnOffOff",
    "AHCMOffOnOffOn",   "AHCMOffOnOnOff",  "AHCMOffOnOnOn",   "AHCMOnOffOffOff", "AHCMOnOffOffOn",
    "AHCMOnOffOnOff",   "AHCMOnOffOnOn",   "AHCMOnOnOffOff",  "AHCMOnOnOffOn",   "AHCMOnOnOnOff",
    "AHCMOnOnOnOn",     "SPMROnOff",       "SPMROnOn",        "CTMROnOffOff",    "CTMROffOffOff",
    "CTMROnOnOff",      "CTMROffOnOff",
};

constexpr std::size_t firstSpecialTapeSlot = 16;

/// A box that the user cannot see has no say, whatever its state; one that is greyed still has.
bool isOn(const QAbstractButton *box)
{
    return box && !box->isHidden() && box->isChecked();
}

std::shared_ptr<const platform::Image> pictureFromBundle(const platform::Bundle &bundle, const char *name)
{
    const std::optional<QString> path = bundle.pathForImageResource(QLatin1String(name));
    return path ? platform::Image::initWithContentsOfFile(*path) : nullptr;
}

} // namespace

OptionView13_v400_::OptionView13_v400_(QWidget *parent)
    : QWidget(parent)
{
}

OptionView13_v400_ *OptionView13_v400_::initWithFrame(const QRect &frame, const platform::Bundle &bundle,
                                                      bool isDZ, QWidget *parent)
{
    auto *const view = new OptionView13_v400_(parent);
    view->setGeometry(frame);
    view->setIsDZ(isDZ);
    view->loadPictures(bundle);
    return view;
}

void OptionView13_v400_::loadPictures(const platform::Bundle &bundle)
{
    const auto load = [&bundle](const auto &names, auto &pictures) {
        for (std::size_t slot = 0; slot < names.size(); ++slot)
            pictures[slot] = pictureFromBundle(bundle, names[slot]);
    };
    if (isDZ())
        load(picturesDZ, mOptionImgDZ);
    else
        load(picturesLX, mOptionImgLX);
}

std::size_t OptionView13_v400_::slotDZ() const
{
    const bool special = isOn(mSpecialTapeChkBx);
    const bool every = !special && (isOn(mCutEveryChkBx) || isOn(mAutoCutChkBx));
    const std::size_t mirror = isOn(mMirrorPrintChkBx) ? 3 : 0;
    // Cutting every label cuts at the end too, so the end alone shows only without it.
    if (every)
        return mirror + 2;
    return mirror + (isOn(mCutAndEndChkBx) ? 1 : 0);
}

std::size_t OptionView13_v400_::slotLX() const
{
    const std::size_t mirror = isOn(mMirrorPrintChkBx) ? 1 : 0;
    // Special tape is never cut by the printer, so nothing about cuts is asked.
    if (isOn(mSpecialTapeChkBx))
        return firstSpecialTapeSlot + mirror;
    const std::size_t automatic = isOn(mAutoCutChkBx) || isOn(mCutEveryChkBx) ? 8 : 0;
    const std::size_t half = isOn(mHalfCutChkBx) ? 4 : 0;
    const std::size_t chain = isOn(mChainPrintChkBx) ? 2 : 0;
    return automatic + half + chain + mirror;
}

const platform::Image *OptionView13_v400_::targetDrawImage() const
{
    return isDZ() ? mOptionImgDZ[slotDZ()].get() : mOptionImgLX[slotLX()].get();
}

void OptionView13_v400_::drawRect(QPainter &painter) const
{
    const platform::Image *const picture = targetDrawImage();
    if (!picture)
        return;
    picture->drawAtPoint(painter, QPointF(0, height() - picture->size().height()), palette());
}

void OptionView13_v400_::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawRect(painter);
}
