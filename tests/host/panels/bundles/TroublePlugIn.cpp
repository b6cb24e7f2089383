// SPDX-License-Identifier: Apache-2.0
// A bundle with one panel for the option "KvTrouble", which behaves as the environment variable
// KVTEST_TROUBLE requests: "throw CALL" throws an exception in the call, "abort CALL" ends the program, "hang
// CALL" does not return, and others are listed below.
#include "OneBoxEntry.h"

#include <protocol/PDEControlReasons.h>
#include <protocol/PDELabelStrip.h>
#include <protocol/PDEPanelHelp.h>

#include <QCheckBox>
#include <QThread>

#include <cstdlib>
#include <stdexcept>

namespace {

/// Whether the bundle is to misbehave in this way.
bool is(const QByteArray &trouble)
{
    return qgetenv("KVTEST_TROUBLE") == trouble;
}

/// Called at the beginning of each call of the protocol.
void enter(const char *call)
{
    if (is(QByteArray("throw ") + call))
        throw std::runtime_error("the sample error");
    if (is(QByteArray("throw number ") + call))
        throw 42; // NOLINT: panels may throw anything
    if (is(QByteArray("abort ") + call))
        std::abort();
    while (is(QByteArray("hang ") + call))
        QThread::msleep(10);
}

class TroublePanel : public PDEPanel,
                     public PDELabelStrip_v1,
                     public PDEControlReasons_v1,
                     public PDEPanelHelp_v1 {
public:
    explicit TroublePanel(std::shared_ptr<PDEPluginCallback13_v400_> callback)
        : m_callback(std::move(callback))
        , m_box(std::make_unique<QCheckBox>())
    {
        constexpr int huge = 100'000;
        if (is("huge view"))
            m_box->resize(huge, huge);
    }

    QWidget *panelView() override
    {
        enter("panelView");
        return is("no view") ? nullptr : m_box.get();
    }
    QString panelName() override
    {
        enter("panelName");
        return QStringLiteral("Trouble");
    }
    QString panelKind() const override { return QStringLiteral("org.example.Trouble"); }
    std::optional<QStringList> supportedPPDOptionKeys() override
    {
        enter("supportedPPDOptionKeys");
        if (is("claims everything"))
            return QStringList{QStringLiteral("KvTrouble"), QStringLiteral("PageSize"),
                               QStringLiteral("Other")};
        return QStringList{QStringLiteral("KvTrouble")};
    }
    void willShow() override
    {
        enter("willShow");
        if (is("deletes view"))
            m_box.reset();
    }
    void printWindowWillClose(QWidget *) override { enter("printWindowWillClose"); }
    bool shouldHide() const override { return false; }
    bool shouldPrint() override
    {
        enter("shouldPrint");
        return true;
    }
    bool shouldShowHelp() const override { return is("help"); }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &, const std::optional<QString> &) override
    {
        enter("PPDOptionKeyValueDidChange");
    }
    bool restoreValuesAndReturnError(QString *) override
    {
        enter("restoreValuesAndReturnError");
        return true;
    }
    bool saveValuesAndReturnError(QString *) override
    {
        enter("saveValuesAndReturnError");
        m_callback->willChangePPDOptionKeyValue(QStringLiteral("KvTrouble"), QStringLiteral("ON"));
        if (is("claims everything"))
            m_callback->willChangePPDOptionKeyValue(QStringLiteral("Other"), QStringLiteral("ON"));
        return true;
    }
    std::optional<QVariantMap> summaryInfo() override
    {
        enter("summaryInfo");
        return std::nullopt;
    }
    PDEStripEffects stripEffects(const PDEChoices &, std::span<const PDELabel> labels) const override
    {
        enter("stripEffects");
        const std::size_t count = is("too few ends") && !labels.empty() ? labels.size() - 1 : labels.size();
        return {.cutting = PDECutting::Known, .ends = std::vector<PDELabelEnd>(count, {.fullCut = true})};
    }

    std::optional<QString> reasonForDisabled(const QString &) const override
    {
        return QStringLiteral("The sample reason.");
    }
    QString helpText() const override { return QStringLiteral("The sample help."); }

private:
    std::shared_ptr<PDEPluginCallback13_v400_> m_callback;
    std::unique_ptr<QCheckBox> m_box;
};

class TroublePlugIn : public PDEPlugIn {
public:
    bool initWithBundle(const platform::Bundle *) override
    {
        enter("initWithBundle");
        return true;
    }
    std::optional<PDEPanelList> PDEPanelsForType(const QString &,
                                                 std::shared_ptr<PDEPluginCallback13_v400_> hostInfo) override
    {
        enter("PDEPanelsForType");
        if (is("no panel"))
            return std::nullopt;
        return PDEPanelList{std::make_shared<TroublePanel>(std::move(hostInfo))};
    }
};

} // namespace

std::unique_ptr<PDEPlugIn> OneBoxEntry::createPlugIn()
{
    enter("createPlugIn");
    return std::make_unique<TroublePlugIn>();
}
