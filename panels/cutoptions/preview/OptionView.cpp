// SPDX-License-Identifier: Apache-2.0
#include "OptionView.h"

#include <QAbstractButton>
#include <QPainter>

namespace {

/// The pictures of the paper-label family: cut every, cut at end, mirror printing. The slots are none, end,
/// every, and then the same with mirror printing.
constexpr std::array<const char *, OptionView13_v400_::DZPictureCount> picturesDZ = {
    "EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff", "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOffOffOn",  "EveryEndMirrorOffOnOn",  "EveryEndMirrorOnOffOn",
};

/// The pictures of the tape family: automatic cut, half cut, chain printing, mirror printing; then special
/// tape and mirror printing; then the pictures of cut marks, which only the pop-up button shows.
constexpr std::array<const char *, OptionView13_v400_::LXPictureCount> picturesLX = {
    "AHCMOffOffOffOff", "AHCMOffOffOffOn", "AHCMOffOffOnOff", "AHCMOffOffOnOn",  "AHCMOffOnOffOff",
    "AHCMOffOnOffOn",   "AHCMOffOnOnOff",  "AHCMOffOnOnOn",   "AHCMOnOffOffOff", "AHCMOnOffOffOn",
    "AHCMOnOffOnOff",   "AHCMOnOffOnOn",   "AHCMOnOnOffOff",  "AHCMOnOnOffOn",   "AHCMOnOnOnOff",
    "AHCMOnOnOnOn",     "SPMROnOff",       "SPMROnOn",        "CTMROnOffOff",    "CTMROffOffOff",
    "CTMROnOnOff",      "CTMROffOnOff",
};

constexpr std::size_t firstSpecialTapeSlot = 16;

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

bool OptionView13_v400_::isOn(OptionKind kind) const
{
    const QAbstractButton *const button = box(kind);
    return button && !button->isHidden() && button->isChecked();
}

std::size_t OptionView13_v400_::slotDZ() const
{
    const bool special = isOn(OptionKind::SpecialTape);
    const bool every = !special && (isOn(OptionKind::CutLabel) || isOn(OptionKind::AutoCut));
    const std::size_t mirror = isOn(OptionKind::Mirror) ? 3 : 0;
    // Cutting every label includes the last one, so the cut at the end is shown only without it.
    if (every)
        return mirror + 2;
    return mirror + (isOn(OptionKind::CutAtEnd) ? 1 : 0);
}

std::size_t OptionView13_v400_::slotLX() const
{
    const std::size_t mirror = isOn(OptionKind::Mirror) ? 1 : 0;
    // The printer never cuts special tape, so the cut options do not matter.
    if (isOn(OptionKind::SpecialTape))
        return firstSpecialTapeSlot + mirror;
    const std::size_t automatic = isOn(OptionKind::AutoCut) || isOn(OptionKind::CutLabel) ? 8 : 0;
    const std::size_t half = isOn(OptionKind::HalfCut) ? 4 : 0;
    const std::size_t chain = isOn(OptionKind::ChainPrint) ? 2 : 0;
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
