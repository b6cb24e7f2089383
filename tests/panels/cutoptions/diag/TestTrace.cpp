// SPDX-License-Identifier: Apache-2.0
#include <diag/Trace.h>
#include <platform/Log.h>

#include <QStringList>

#include <gtest/gtest.h>

namespace {

class Trace : public testing::Test {
protected:
    Trace()
    {
        platform::setLogSink([this](const QString &line) { lines.append(line); });
    }
    ~Trace() override { platform::setLogSink({}); }

    QStringList lines;
};

struct Panel {
    QString description() const { return text; }
    QString text = QStringLiteral("the panel");
};

/// A panel that does not describe itself.
class SilentPanel {
public:
    virtual ~SilentPanel() = default;
};

} // namespace

TEST_F(Trace, EachFunctionHasItsTag)
{
    const Panel panel;
    _PDEProlog(&panel, "value %d", 3);
    _PDEEpilog(&panel, "value %d", 3);
    _PDELog(&panel, "value %d", 3);
    EXPECT_EQ(lines, QStringList({"BEGIN self(the panel) value 3", "END self(the panel) value 3",
                                  "LOG self(the panel) value 3"}));
}

TEST_F(Trace, NullObjectIsLeftOut)
{
    _PDEProlog(nullptr, "value %d", 3);
    _PDEEpilog(static_cast<const Panel *>(nullptr), "%@", nullptr);
    _PDELog(nullptr, "plain");
    EXPECT_EQ(lines, QStringList({"BEGIN value 3", "END (null)", "LOG plain"}));
}

TEST_F(Trace, ObjectWithoutDescriptionIsNamedByItsClass)
{
    const SilentPanel panel;
    _PDEProlog(&panel, "shown");
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("BEGIN self(<"))) << qPrintable(lines[0]);
    EXPECT_TRUE(lines[0].contains(QStringLiteral("SilentPanel: 0x"))) << qPrintable(lines[0]);
    EXPECT_TRUE(lines[0].endsWith(QStringLiteral(">) shown"))) << qPrintable(lines[0]);
}

TEST_F(Trace, DirectivesInADescriptionAreFilledLikeTheCallers)
{
    const Panel panel{QStringLiteral("%d %n")};
    _PDELog(&panel, "then %d %@", 1, 2);
    EXPECT_EQ(lines, QStringList({"LOG self(1 %n) then 2 %@"}));
}

TEST_F(Trace, ArgumentsAreNotTakenForDirectives)
{
    _PDELog(nullptr, "%@ %d", QStringLiteral("100 %d"), 5);
    EXPECT_EQ(lines, QStringList({"LOG 100 %d 5"}));
}

TEST_F(Trace, ExportedFormTakesAListOfArguments)
{
    const platform::FormatArgument arguments[] = {QStringLiteral("a"), 5};
    _PDELog(nullptr, "%@ %d", std::span(arguments));
    EXPECT_EQ(lines, QStringList({"LOG a 5"}));
}
