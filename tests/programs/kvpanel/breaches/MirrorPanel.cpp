// SPDX-License-Identifier: Apache-2.0
// A panel with one check box for the option "KvMirror" that follows the protocol, except for the breach that
// the definition TEST_BREACH names.
#include "MirrorEntry.h"

#include <platform/NotificationCenter.h>
#include <protocol/PDEControlReasons.h>
#include <protocol/PDELabelStrip.h>
#include <protocol/PDEPanelHelp.h>
#include <protocol/PDEUserChoices.h>

#include <QCheckBox>
#include <QMessageBox>

#include <stdexcept>

namespace {

enum class Breach {
    None,
    ForeignKeyword,     ///< claims an option that is not among the metadata's keywords
    UnknownKeyword,     ///< claims an option that the PPD does not have
    NoView,             ///< has no view
    DeletedView,        ///< deletes its view when it restores
    ParentedView,       ///< returns a view that has a parent
    SavesForeign,       ///< saves an option that it does not claim
    SavesDifferently,   ///< saves another choice each time
    SavesUnknownChoice, ///< saves a choice that the PPD does not have
    MarksDirectly,      ///< marks the PPD while it saves
    WrongEnds,          ///< returns one end too few
    StripMarks,         ///< marks the PPD when it is asked for the strip
    StripDiffers,       ///< returns other effects each time
    SummaryMissing,     ///< the display order names an entry that is missing
    SummaryUnlisted,    ///< the display order lacks an entry
    UnknownShownChoice, ///< shows a choice that the PPD does not have
    OpensWindow,        ///< opens a modal window while it saves
    Throws,             ///< throws an exception when an option changes
    NoKind,             ///< has no kind
    NoName,             ///< has no name
    IgnoresUserChoices, ///< does not apply the user's choices
    HidesUserChoices,   ///< applies the user's choices without the dialog
    HelpWithoutText,    ///< offers help without the interface
    LeavesObserver,     ///< leaves an observer of notifications
    EmptyReason,        ///< returns an empty reason
    NoPanel,            ///< creates no panel
};
constexpr Breach planted = Breach::TEST_BREACH;

const QString keyword = QStringLiteral("KvMirror");
const QString title = QStringLiteral("Mirror");

class MirrorPanel : public PDEPanel,
                    public PDEUserChoices_v1,
                    public PDEChoiceSummary_v1,
                    public PDELabelStrip_v1,
                    public PDEControlReasons_v1 {
public:
    explicit MirrorPanel(std::shared_ptr<PDEPluginCallback13_v400_> callback)
        : m_callback(std::move(callback))
        , m_box(new QCheckBox(planted == Breach::ParentedView ? &m_parent : nullptr))
    {
        QObject::connect(m_box.get(), &QCheckBox::clicked, [this] { change(keyword, shown()); });
        if (planted == Breach::LeavesObserver)
            platform::NotificationCenter::defaultCenter().addObserver(this, keyword, nullptr,
                                                                      [](const auto &) {});
    }

    QWidget *panelView() override { return planted == Breach::NoView ? nullptr : m_box.get(); }
    QString panelName() override { return planted == Breach::NoName ? QString() : title; }
    QString panelKind() const override
    {
        return planted == Breach::NoKind ? QString() : QStringLiteral("org.example.Mirror");
    }
    std::optional<QStringList> supportedPPDOptionKeys() override
    {
        QStringList keywords{keyword};
        if (planted == Breach::ForeignKeyword)
            keywords.append(QStringLiteral("KvHalfCut"));
        if (planted == Breach::UnknownKeyword)
            keywords.append(QStringLiteral("KvUnknown"));
        return keywords;
    }
    void willShow() override { restoreValuesAndReturnError(nullptr); }
    void printWindowWillClose(QWidget *) override {}
    bool shouldHide() const override { return false; }
    bool shouldPrint() override { return true; }
    bool shouldShowHelp() const override { return planted == Breach::HelpWithoutText; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &, const std::optional<QString> &) override
    {
        if (planted == Breach::Throws)
            throw std::runtime_error("no such choice");
    }
    bool restoreValuesAndReturnError(QString *) override
    {
        if (planted == Breach::DeletedView)
            m_box.reset();
        const ppd_choice_t *const marked = ppdFindMarkedChoice(m_callback->ppdFile(), "KvMirror");
        if (m_box)
            m_box->setChecked(marked && qstrcmp(marked->choice, "ON") == 0);
        return true;
    }
    bool saveValuesAndReturnError(QString *) override
    {
        ++m_saved;
        if (planted == Breach::SavesUnknownChoice)
            change(keyword, QStringLiteral("Perhaps"));
        else if (planted == Breach::SavesDifferently)
            change(keyword, m_saved % 2 ? QStringLiteral("ON") : QStringLiteral("OFF"));
        else
            change(keyword, shown());
        if (planted == Breach::SavesForeign)
            change(QStringLiteral("KvHalfCut"), QStringLiteral("ON"));
        if (planted == Breach::MarksDirectly)
            markOther();
        if (planted == Breach::OpensWindow)
            QMessageBox::information(nullptr, QStringLiteral("Saved"), QStringLiteral("Saved."));
        return true;
    }
    std::optional<QVariantMap> summaryInfo() override { return summaryInfoFor({{keyword, shown()}}); }

    std::optional<QVariantMap> summaryInfoFor(const PDEChoices &) const override
    {
        QStringList order{title};
        QVariantMap summary{{title, shown()}};
        if (planted == Breach::SummaryMissing)
            order.append(QStringLiteral("Missing"));
        if (planted == Breach::SummaryUnlisted)
            summary.insert(QStringLiteral("Unlisted"), QStringLiteral("Yes"));
        summary.insert(PDESummaryDisplayOrderKey, order);
        return summary;
    }

    PDEChoices shownChoices() const override
    {
        return {{keyword, planted == Breach::UnknownShownChoice ? QStringLiteral("Perhaps") : shown()}};
    }
    int combinationsChosen() const override { return 0; }
    void applyUserChoices(const PDEChoices &choices) override
    {
        for (const auto &[key, choice] : choices) {
            if (key != keyword || choice == shown() || planted == Breach::IgnoresUserChoices)
                continue;
            if (planted == Breach::HidesUserChoices)
                m_box->toggle();
            else
                m_box->click();
        }
    }

    PDEStripEffects stripEffects(const PDEChoices &, std::span<const PDELabel> labels) const override
    {
        ++m_asked;
        if (planted == Breach::StripMarks)
            markOther();
        PDEStripEffects effects;
        effects.cutting = PDECutting::Known;
        effects.mirror = planted == Breach::StripDiffers && m_asked % 2;
        effects.ends.resize(labels.size());
        if (planted == Breach::WrongEnds && !labels.empty())
            effects.ends.pop_back();
        return effects;
    }

    std::optional<QString> reasonForDisabled(const QString &) const override
    {
        return planted == Breach::EmptyReason ? std::optional(QString()) : std::nullopt;
    }

private:
    QString shown() const { return m_box->isChecked() ? QStringLiteral("ON") : QStringLiteral("OFF"); }
    void change(const QString &key, const QString &choice)
    {
        m_callback->willChangePPDOptionKeyValue(key, choice);
    }
    /// Marks the other choice in the PPD, past the dialog.
    void markOther() const
    {
        ppd_file_t *const ppd = m_callback->ppdFile();
        const ppd_choice_t *const marked = ppdFindMarkedChoice(ppd, "KvMirror");
        ppdMarkOption(ppd, "KvMirror", marked && qstrcmp(marked->choice, "ON") == 0 ? "OFF" : "ON");
    }

    std::shared_ptr<PDEPluginCallback13_v400_> m_callback;
    QWidget m_parent;
    std::unique_ptr<QCheckBox> m_box;
    int m_saved = 0;
    mutable int m_asked = 0;
};

class MirrorPlugIn : public PDEPlugIn {
public:
    bool initWithBundle(const platform::Bundle *) override { return true; }
    std::optional<PDEPanelList> PDEPanelsForType(const QString &type,
                                                 std::shared_ptr<PDEPluginCallback13_v400_> hostInfo) override
    {
        if (type != PDEPrintDialogType || planted == Breach::NoPanel)
            return PDEPanelList();
        return PDEPanelList{std::make_shared<MirrorPanel>(std::move(hostInfo))};
    }
};

} // namespace

std::unique_ptr<PDEPlugIn> MirrorEntry::createPlugIn()
{
    return std::make_unique<MirrorPlugIn>();
}
