// SPDX-License-Identifier: Apache-2.0
// A minimal bundle: one panel with one check box for the option "KvMirror". Its summary lists the calls that
// it received from the dialog. While its view has the property "refusesJobs", it rejects every job;
// "askedForJobs" counts how often it was called for a job.
#include "OneBoxEntry.h"

#include <protocol/PDEUserChoices.h>

#include <QCheckBox>

#ifdef TEST_MISSING_SYMBOL
void functionOfNoLibrary();
#endif

namespace {

class OneBoxPanel : public PDEPanel, public PDEUserChoices_v1 {
public:
    explicit OneBoxPanel(std::shared_ptr<PDEPluginCallback13_v400_> callback)
        : m_callback(std::move(callback))
    {
        QObject::connect(&m_box, &QCheckBox::clicked, [this](bool on) {
            m_callback->willChangePPDOptionKeyValue(QStringLiteral("KvMirror"),
                                                    on ? QStringLiteral("ON") : QStringLiteral("OFF"));
        });
    }

    QWidget *panelView() override { return &m_box; }
    QString panelName() override { return QStringLiteral("One box"); }
    QString panelKind() const override { return QStringLiteral("org.example.OneBox"); }
    std::optional<QStringList> supportedPPDOptionKeys() override
    {
        return QStringList{QStringLiteral("KvMirror")};
    }
    void willShow() override { m_heard.append(QStringLiteral("willShow")); }
    void printWindowWillClose(QWidget *) override {}
    bool shouldHide() const override { return false; }
    bool shouldPrint() override
    {
        m_box.setProperty("askedForJobs", m_box.property("askedForJobs").toInt() + 1);
        return !m_box.property("refusesJobs").toBool();
    }
    bool shouldShowHelp() const override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                    const std::optional<QString> &choice) override
    {
        m_heard.append(key.value_or(QStringLiteral("nil")) + u'=' + choice.value_or(QStringLiteral("nil")));
    }
    bool restoreValuesAndReturnError(QString *) override { return true; }
    bool saveValuesAndReturnError(QString *) override { return true; }
    std::optional<QVariantMap> summaryInfo() override
    {
        return QVariantMap{{QStringLiteral("Heard"), m_heard.join(u' ')},
                           {PDESummaryDisplayOrderKey, QStringList{QStringLiteral("Heard")}}};
    }

    PDEChoices shownChoices() const override
    {
        return {
            {QStringLiteral("KvMirror"), m_box.isChecked() ? QStringLiteral("ON") : QStringLiteral("OFF")}};
    }
    int combinationsChosen() const override { return 0; }
    void applyUserChoices(const PDEChoices &choices) override
    {
        for (const auto &[keyword, choice] : choices) {
            const bool asksForOn = choice == QStringLiteral("ON");
            const bool isChoice = asksForOn || choice == QStringLiteral("OFF");
            // The box is what would be saved. A click is the user's, so the dialog receives the choice.
            if (keyword == QStringLiteral("KvMirror") && isChoice && asksForOn != m_box.isChecked())
                m_box.click();
        }
    }

private:
    std::shared_ptr<PDEPluginCallback13_v400_> m_callback;
    QCheckBox m_box;
    QStringList m_heard;
};

class OneBoxPlugIn : public PDEPlugIn {
public:
    bool initWithBundle(const platform::Bundle *) override
    {
#ifdef TEST_MISSING_SYMBOL
        functionOfNoLibrary();
#endif
        return TEST_ACCEPTS;
    }
    std::optional<PDEPanelList> PDEPanelsForType(const QString &type,
                                                 std::shared_ptr<PDEPluginCallback13_v400_> hostInfo) override
    {
        if (type != PDEPrintDialogType)
            return PDEPanelList();
        return PDEPanelList{std::make_shared<OneBoxPanel>(std::move(hostInfo))};
    }
};

} // namespace

std::unique_ptr<PDEPlugIn> OneBoxEntry::createPlugIn()
{
    return std::make_unique<OneBoxPlugIn>();
}
