// SPDX-License-Identifier: Apache-2.0
#include "PanelPair.h"

#include "Episode.h"

#include <platform/StaticText.h>
#include <tests/support/PpdBuilder.h>

#include <QTemporaryFile>

#include <sstream>

namespace walk {

namespace {

using model::Row;

/// A dialog that is asked for its paper millions of times and keeps no record of that.
class UnrecordedDialog : public test_support::TestDialog {
public:
    using TestDialog::TestDialog;
    PMPageFormat pageFormat() const override { return const_cast<platform::PageFormat *>(&format); }
};

model::PrinterDescription everyOption(bool isDZ)
{
    model::PrinterDescription printer;
    printer.options.push_back(model::countOption("KvCutLabel", "Cut Every", 1, 9, 1));
    for (const Row row : model::rows) {
        if (row != Row::CutEvery)
            printer.options.push_back(model::switchOption(namesOf(row).keyword, namesOf(row).keyword, false));
    }
    printer.papers = {"24mm", "FL01", "DC01", "AV01", "HS24"};
    printer.tapeType = isDZ ? "DZ" : "LX";
    printer.autoCutObjHidden = "False";
    return printer;
}

test_support::PpdPointer opened(const model::PrinterDescription &printer)
{
    QTemporaryFile file;
    if (!file.open() || file.write(ppdOf(printer)) < 0 || !file.flush())
        return nullptr;
    return test_support::PpdPointer(ppdOpenFile(file.fileName().toUtf8().constData()));
}

/// The bundle's nine boxes are reached by kind; the model's rows stand in the same order.
QCheckBox *boxOf(OptionPDE13_v400_ &panel, Row row)
{
    return panel.checkBox(static_cast<OptionKind>(row));
}

void refill(platform::PopUpButton &popUp)
{
    popUp.clear();
    QStringList tags;
    for (int tag = 1; tag <= 16; ++tag) {
        popUp.addItem(QString());
        tags.append(QString::number(tag));
    }
    popUp.setItemTags(tags);
}

} // namespace

PanelPair::PanelPair(bool isDZ)
{
    const auto printer = everyOption(isDZ);
    m_dialog = std::make_shared<UnrecordedDialog>(opened(printer));
    m_real = OptionPDE13_v400_::initWithCallback(
        m_dialog, platform::Bundle::open(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle", {"en"}));
    m_real->panelView();
    refill(*m_real->popUp());
    for (const Row row : model::rows)
        m_boxes[static_cast<std::size_t>(row)] = boxOf(*m_real, row);

    m_modelDialog = std::make_unique<model::Dialog>(printer);
    m_model = std::make_unique<model::Panel>(
        *m_modelDialog, [](const QString &key) { return key; }, model::LayoutFile::ofSources());
    m_model->loadView();
}

void PanelPair::setPaper(const std::optional<QString> &name)
{
    m_dialog->format.paper.reset();
    m_modelDialog->paper.reset();
    if (!name)
        return;
    m_dialog->setPaper(*name);
    m_modelDialog->paper = model::Paper{name, 100.0};
}

void PanelPair::setHidden(Row row, bool hidden)
{
    box(row)->setHidden(hidden);
    (*m_model->view)[row].hidden = hidden;
}

void PanelPair::setState(Row row, bool on)
{
    box(row)->setChecked(on);
    (*m_model->view)[row].value = on ? 1 : 0;
}

void PanelPair::setEnabled(Row row, bool enabled)
{
    box(row)->setEnabled(enabled);
    (*m_model->view)[row].enabled = enabled;
}

void PanelPair::setCountEnabled(bool field, bool stepper, bool wordGrey)
{
    m_real->countField()->setEnabled(field);
    m_real->countStepper()->setEnabled(stepper);
    auto *word = dynamic_cast<platform::StaticText *>(m_real->countWord());
    word->setTextColor(wordGrey ? platform::ControlTextColor::Disabled : platform::ControlTextColor::Enabled);
    m_model->view->countField.enabled = field;
    m_model->view->countStepper.enabled = stepper;
    m_model->view->isWordGrey = wordGrey;
}

void PanelPair::choosePreset(int tag)
{
    m_real->popUp()->selectItemWithTag(tag);
    m_real->changeOptionPopUpButton(m_real->popUp());
    m_model->choosePreset(tag);
}

bool PanelPair::agrees() const
{
    const auto &view = *m_model->view;
    for (const Row row : model::rows) {
        if (box(row)->isEnabledTo(box(row)->parentWidget()) != view[row].enabled ||
            box(row)->isChecked() != (view[row].value == 1) || box(row)->isHidden() != view[row].hidden)
            return false;
    }
    const auto *word = dynamic_cast<platform::StaticText *>(m_real->countWord());
    return m_real->countField()->isEnabled() == view.countField.enabled &&
           m_real->countStepper()->isEnabled() == view.countStepper.enabled &&
           (word->textColor() == platform::ControlTextColor::Disabled) == view.isWordGrey;
}

std::string PanelPair::description() const
{
    const auto &view = *m_model->view;
    std::ostringstream text;
    text << "paper " << m_modelDialog->paperName().toStdString() << "\n";
    for (const Row row : model::rows) {
        text << namesOf(row).box << ": hidden " << box(row)->isHidden() << ", enabled "
             << box(row)->isEnabledTo(box(row)->parentWidget()) << " (" << view[row].enabled << "), state "
             << box(row)->isChecked() << " (" << view[row].value << ")\n";
    }
    text << "count field " << m_real->countField()->isEnabled() << " (" << view.countField.enabled
         << "), stepper " << m_real->countStepper()->isEnabled() << " (" << view.countStepper.enabled
         << "), grey word (" << view.isWordGrey << "); what the model expects in parentheses";
    return text.str();
}

QString PanelPair::picture() const
{
    const auto *image = m_real->preview()->targetDrawImage();
    return image ? image->name() : QString();
}

} // namespace walk
