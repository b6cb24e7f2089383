// SPDX-License-Identifier: Apache-2.0
#include "ModelBench.h"

namespace model {

PrinterDescription fullPrinter()
{
    PrinterDescription printer;
    printer.options.push_back(countOption("KvCutLabel", "Cut Every", 1, 99, 1));
    for (const char *keyword : {"KvCutAtEnd", "KvMirror", "KvAutoTapeCut", "KvHalfCut", "KvChainPrint",
                                "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"})
        printer.options.push_back(switchOption(keyword, QString(keyword).mid(2), false));
    printer.papers = {"24mm", "DC01", "AV01", "FL01", "HS24"};
    printer.autoCutObjHidden = "False";
    return printer;
}

PrinterDescription printerWithout(const QStringList &keywords)
{
    auto printer = fullPrinter();
    std::erase_if(printer.options,
                  [&keywords](const OptionDescription &option) { return keywords.contains(option.keyword); });
    if (keywords.contains("KvAutoCutObjHidden"))
        printer.autoCutObjHidden.reset();
    return printer;
}

ModelBench::ModelBench(const PrinterDescription &printer, QJsonObject openMembers)
    : m_driver([](const QString &key) { return key; })
{
    m_driver.addPrinter("printer.ppd", printer);
    openMembers["ppd"] = "printer.ppd";
    ask("open", openMembers);
}

QJsonObject ModelBench::ask(const QString &op, QJsonObject members)
{
    members["op"] = op;
    return m_driver.handle(members);
}

ModelBench &ModelBench::show()
{
    ask("view");
    ask("willShow");
    return *this;
}

QJsonObject ModelBench::click(const char *box, bool force)
{
    return ask("click", {{"control", box}, {"force", force}});
}

QJsonObject ModelBench::choosePaper(const QString &name)
{
    return ask("paper", {{"paper", QJsonObject{{"name", name}, {"height", 100}}}});
}

QList<std::pair<QString, QString>> ModelBench::changes(const QJsonObject &reply)
{
    QList<std::pair<QString, QString>> found;
    for (const auto event : reply["events"].toArray()) {
        if (event[0] == "willChange")
            found.append({event[1].toString(), event[2].toString()});
    }
    return found;
}

QString ticketFor(const QString &paper)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                          "<key>LxPaperName2</key><string>%1</string></dict></plist>")
        .arg(paper);
}

} // namespace model
