// SPDX-License-Identifier: Apache-2.0
// The message formatter behind the debug log and the traces.
#include <platform/FormatString.h>

#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale.h>

using platform::FormatArgument;
using platform::stringWithFormat;

namespace {

struct Described {
    QString description() const { return QStringLiteral("described"); }
};

struct Polymorphic {
    virtual ~Polymorphic() = default;
};

enum class Item : unsigned short { Cut = 0x1000 };

QString formatted(const QString &format, std::initializer_list<FormatArgument> arguments)
{
    return stringWithFormat(format, std::span(arguments.begin(), arguments.size()));
}

/// What C's printf makes of the directive.
template<typename Value>
QString printed(const QByteArray &directive, Value value)
{
    char buffer[2048];
    std::snprintf(buffer, sizeof buffer, directive.constData(), value);
    return QString::fromLatin1(buffer);
}

} // namespace

TEST(FormatString, Table)
{
    struct Row {
        const char *format;
        std::initializer_list<FormatArgument> arguments;
        const char *text;
    };
    const Row rows[] = {
        {"", {}, ""},
        {"plain é", {}, "plain é"},
        {"%%", {}, "%"},
        {"100%% %d%%", {5}, "100% 5%"},
        {"%@ and %@", {"a", QStringLiteral("b")}, "a and b"},
        {"%@", {nullptr}, "(null)"},
        {"%@", {5}, "5"},
        {"%@", {-2.5}, "-2.5"},
        {"%@",
         {QVariant(QVariantMap{{"a", 1}, {"b", QVariantList{"x", QVariant()}}})},
         "{a = 1; b = (x, (null))}"},
        {"%s|%s", {"C string", static_cast<const char *>(nullptr)}, "C string|(null)"},
        {"%s %S", {QStringLiteral("text"), QStringLiteral("wide")}, "text wide"},
        {"%5@|%-5@|%.2@|%5.2@", {"abc", "abc", "abc", "abc"}, "  abc|abc  |ab|   ab"},
        {"%05s", {"abc"}, "  abc"},
        {"%.1@%.1@", {"😀x", "😀"}, ""},
        {"%.2@", {"😀x"}, "😀"},
        {"%c%c%C%lc", {'A', 0xe9, 0x65e5, 0x672c}, "Aé日本"},
        {"%3c|%-3c|", {'x', 'y'}, "  x|y  |"},
        {"%hhd %hhu %hd %hu", {0x1ff, 0x1ff, 0x18000, 0x18000}, "-1 255 -32768 32768"},
        {"%02hhx", {-85}, "ab"},
        {"%x %lx %llX", {-1, -1, -1}, "ffffffff ffffffffffffffff FFFFFFFFFFFFFFFF"},
        {"%d %u", {4000000000u, -1}, "-294967296 4294967295"},
        {"%d %ld %qd %jd %zd %td", {5000000000LL, 1L, 2LL, 3, 4, 5}, "5000000000 1 2 3 4 5"},
        {"%d %d %d", {true, 'A', Item::Cut}, "1 65 4096"},
        {"%i %o %#x %+d % d", {7, 8, 255, 3, 4}, "7 10 0xff +3  4"},
        {"%*d|%-*d|%*d", {5, 1, 4, 2, -3, 3}, "    1|2   |3  "},
        {"%.*f|%.*f", {1, 2.25, -1, 2.25}, "2.2|2.250000"},
        {"%f %e %g %a", {1.5, 1.5, 1.5, 1.5}, "1.500000 1.500000e+00 1.5 0x1.8p+0"},
        {"%Lf %lf %F", {1.5L, 1.5f, 2.0}, "1.500000 1.500000 2.000000"},
        {"%2$@ %1$@ %2$@", {"a", "b"}, "b a b"},
        {"%2$d%@", {"first", 2}, "2first"},
        {"%'d", {1234567}, "1234567"},
        {"<%.0d>", {0}, "<>"},
        // What cannot be filled stands as it is written.
        {"%d", {}, "%d"},
        {"%d %d", {1}, "1 %d"},
        {"%d %@", {"text", "next"}, "%d next"},
        {"%s %f %c %p", {1, 2, 3.5, 4}, "%s %f %c %p"},
        {"%d %x", {1.5, 2.5}, "%d %x"},
        {"%n %Q %y %@", {1}, "%n %Q %y 1"},
        {"%", {1}, "%"},
        {"a%5", {1}, "a%5"},
        {"%-08.3l", {1}, "%-08.3l"},
        {"%3$@ %0$@", {"a", "b"}, "%3$@ %0$@"},
        {"%*d", {5}, "%*d"},
        {"%*d %@", {"x", 5}, "%*d 5"},
        {"%.*@", {2.5, "x"}, "%.*@"},
        {"%日%@", {"x"}, "%日x"},
        {"% %", {}, "%"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(formatted(QString::fromUtf8(row.format), row.arguments), QString::fromUtf8(row.text))
            << row.format;
}

TEST(FormatString, AbsentTextIsNotAnEmptyOne)
{
    std::optional<QString> text;
    EXPECT_EQ(stringWithFormat("<%@>", text), QStringLiteral("<(null)>"));
    text.emplace();
    EXPECT_EQ(stringWithFormat("<%@>", text), QStringLiteral("<>"));
}

TEST(FormatString, ObjectsDescribeThemselves)
{
    const Described object;
    EXPECT_EQ(stringWithFormat("%@ %@", object, &object), QStringLiteral("described described"));
    EXPECT_EQ(stringWithFormat("%@", std::make_shared<Described>()), QStringLiteral("described"));
    EXPECT_EQ(stringWithFormat("%@", std::make_unique<Described>()), QStringLiteral("described"));
    EXPECT_EQ(stringWithFormat("%@", static_cast<const Described *>(nullptr)), QStringLiteral("(null)"));
    EXPECT_EQ(stringWithFormat("%@", std::shared_ptr<Described>()), QStringLiteral("(null)"));
}

TEST(FormatString, ObjectsWithoutDescriptionShowClassAndAddress)
{
    const Polymorphic object;
    const QString address = QStringLiteral("0x%1").arg(reinterpret_cast<quintptr>(&object), 0, 16);
    const QString text = stringWithFormat("%@", &object);
    EXPECT_TRUE(text.contains(QStringLiteral("Polymorphic: ") + address)) << qPrintable(text);
    EXPECT_EQ(stringWithFormat("%p", &object), address);
    EXPECT_EQ(stringWithFormat("%p", static_cast<const void *>(&object)), address);
    EXPECT_EQ(stringWithFormat("%p|%6p", nullptr, nullptr), QStringLiteral("0x0|   0x0"));
}

TEST(FormatString, WidthsAndPrecisionsAreBounded)
{
    EXPECT_EQ(stringWithFormat("%999999999999d", 1).size(), 4096);
    EXPECT_EQ(stringWithFormat("%*d", std::numeric_limits<std::int64_t>::min(), 1).size(), 4096);
    EXPECT_EQ(stringWithFormat("%.99999f", 0.5).size(), 2 + 4096);
    EXPECT_EQ(stringWithFormat("%99999@", "x").size(), 4096);
}

TEST(FormatString, NumbersLookTheSameInEveryLocale)
{
    // A locale with a decimal comma, made for the test.
    const QTemporaryDir folder;
    ASSERT_EQ(QProcess::execute("localedef", {"-c", "--no-archive", "-i", "de_DE", "-f", "UTF-8",
                                              folder.filePath("de_DE.UTF-8")}),
              0);
    const QByteArray previousPath = qgetenv("LOCPATH");
    qputenv("LOCPATH", folder.path().toLocal8Bit());
    const locale_t german = newlocale(LC_ALL_MASK, "de_DE.UTF-8", nullptr);
    ASSERT_TRUE(german);
    const locale_t previous = uselocale(german);
    const QString withComma = printed("%.2f", 1234.5);
    const QString text = stringWithFormat("%.2f %@", 1234.5, 0.5);
    EXPECT_EQ(uselocale(previous), german) << "the thread's locale is left as it was";
    freelocale(german);
    if (previousPath.isEmpty())
        qunsetenv("LOCPATH");
    else
        qputenv("LOCPATH", previousPath);
    EXPECT_EQ(withComma, QStringLiteral("1234,50"));
    EXPECT_EQ(text, QStringLiteral("1234.50 0.5"));
}

TEST(FormatString, RandomNumbersLookAsPrintfPrintsThem)
{
    const quint32 seed = QRandomGenerator::global()->generate();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RecordProperty("seed", std::to_string(seed));
    QRandomGenerator random(seed);
    for (int round = 0; round < 20000; ++round) {
        QByteArray parts = "%";
        for (const char flag : {'-', '+', ' ', '#', '0'})
            if (random.bounded(3) == 0)
                parts += flag;
        if (random.bounded(2))
            parts += QByteArray::number(random.bounded(1, 40));
        if (random.bounded(2))
            parts += '.' + QByteArray::number(random.bounded(30));
        const auto bits = random.generate64() >> random.bounded(64);
        const char integer = "diouxX"[random.bounded(6)];
        const QByteArray plain = parts + integer;
        ASSERT_EQ(stringWithFormat(QString::fromLatin1(plain), static_cast<int>(bits)),
                  printed(plain, static_cast<int>(bits)))
            << plain.constData() << ' ' << bits;
        const QByteArray wide = parts + "ll" + integer;
        ASSERT_EQ(stringWithFormat(QString::fromLatin1(wide), bits), printed(wide, bits))
            << wide.constData() << ' ' << bits;
        const QByteArray tiny = parts + "hh" + integer;
        ASSERT_EQ(stringWithFormat(QString::fromLatin1(tiny), static_cast<int>(bits)),
                  printed(tiny, static_cast<int>(bits)))
            << tiny.constData() << ' ' << bits;
        const double real =
            std::ldexp(static_cast<double>(static_cast<qint64>(bits)), random.bounded(-80, 80));
        const QByteArray exact = parts + "fFeEgGaA"[random.bounded(8)];
        ASSERT_EQ(stringWithFormat(QString::fromLatin1(exact), real), printed(exact, real))
            << exact.constData() << ' ' << real;
    }
}

TEST(FormatString, PercentSignsOfArgumentsAreNoDirectives)
{
    EXPECT_EQ(stringWithFormat("%@ %d", "%d %n %@", 7), QStringLiteral("%d %n %@ 7"));
}
