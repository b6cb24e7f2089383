// SPDX-License-Identifier: Apache-2.0
#include "DriverModel.h"

#include <algorithm>
#include <cmath>

namespace model {

namespace {

const QJsonObject failure{{"ok", false}};

bool isMissing(const QJsonObject &object, const char *member)
{
    return !object.contains(QLatin1String(member));
}

bool isTextOrNull(const QJsonValue &value)
{
    return value.isString() || value.isNull() || value.isUndefined();
}

std::optional<QString> textOf(const QJsonValue &value)
{
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

/// The integer of a JSON number that has no fraction and fits 32 bits.
std::optional<int> integerOf(const QJsonValue &value)
{
    const double number = value.toDouble(std::nan(""));
    if (!(number >= -2147483648.0 && number <= 2147483647.0) || number != std::floor(number))
        return std::nullopt;
    return static_cast<int>(number);
}

bool isForced(const QJsonObject &request)
{
    return request["force"].toBool();
}

bool isForceValid(const QJsonObject &request)
{
    return isMissing(request, "force") || request["force"].isBool();
}

bool canUse(const Control &control, const QJsonObject &request)
{
    return isForced(request) || (!control.hidden && control.enabled);
}

/// Reads a paper member; false when it is ill-formed.
bool readPaper(const QJsonValue &value, std::optional<Paper> &paper)
{
    if (value.isNull()) {
        paper.reset();
        return true;
    }
    const auto object = value.toObject();
    if (!value.isObject() || isMissing(object, "name") || !isTextOrNull(object["name"]) ||
        !object["height"].isDouble())
        return false;
    Paper read;
    read.name = textOf(object["name"]);
    read.height = object["height"].toDouble();
    for (const auto &[member, status] :
         {std::pair("paperStatus", &read.paperStatus), std::pair("nameStatus", &read.nameStatus),
          std::pair("heightStatus", &read.heightStatus)}) {
        if (isMissing(object, member))
            continue;
        const auto number = integerOf(object[QLatin1String(member)]);
        if (!number)
            return false;
        *status = *number;
    }
    paper = read;
    return true;
}

QJsonValue paperOrNull(const QJsonObject &request)
{
    return isMissing(request, "paper") ? QJsonValue() : request["paper"];
}

} // namespace

void DriverModel::addPrinter(const QString &path, const PrinterDescription &description)
{
    m_printers[path] = description;
}

QJsonObject DriverModel::handle(const QJsonObject &request)
{
    const auto op = request["op"].toString();
    if (op == "open")
        return open(request);
    if (!m_panel)
        return failure;
    m_dialog->events = {};
    QJsonObject reply;
    if (!run(op, request, reply))
        return failure;
    reply["ok"] = true;
    reply["events"] = m_dialog ? m_dialog->events : QJsonArray();
    return reply;
}

bool DriverModel::run(const QString &op, const QJsonObject &request, QJsonObject &reply)
{
    static const QStringList inOrderWithoutView = {
        "view",      "supportedKeys", "save",      "shouldPrint", "summary",  "names", "mark",
        "ppdChange", "paper",         "keyWindow", "localized",   "tapeInfo", "close"};
    if (!m_panel->view && !inOrderWithoutView.contains(op))
        return false;
    if (op == "close") {
        close();
        return true;
    }
    return runProtocol(op, reply) || runUserAction(op, request) || runOutsideChange(op, request) ||
           runReadBack(op, request, reply);
}

void DriverModel::close()
{
    m_panel.reset();
    m_dialog.reset();
}

QJsonObject DriverModel::open(const QJsonObject &request)
{
    close();
    const auto printer = m_printers.constFind(request["ppd"].toString());
    std::optional<Paper> paper;
    if (printer == m_printers.constEnd() || !readPaper(paperOrNull(request), paper))
        return failure;
    auto dialog = std::make_unique<Dialog>(*printer);
    dialog->paper = paper;
    dialog->ticket = textOf(request["ticket"]);
    dialog->hasSettings = request["printSettings"].toBool(true);
    dialog->deviceURI = textOf(request["deviceURI"]);
    dialog->canResize = request["canResize"].toBool(true);
    if (request["keyWindowHeight"].isDouble())
        dialog->keyWindowHeight = request["keyWindowHeight"].toDouble();
    if (request["markDefaults"].toBool(true))
        dialog->markDefaults();
    for (const auto mark : request["marks"].toArray())
        dialog->mark(mark.toArray()[0].toString(), mark.toArray()[1].toString());
    m_dialog = std::move(dialog);
    m_panel = std::make_unique<Panel>(*m_dialog, m_localize, LayoutFile::ofSources());
    return {{"ok", true}, {"events", m_dialog->events}, {"loaded", true}, {"panels", 1}};
}

bool DriverModel::runProtocol(const QString &op, QJsonObject &reply)
{
    if (op == "view") {
        m_panel->loadView();
        reply["view"] = true;
    } else if (op == "willShow") {
        m_panel->willShow();
    } else if (op == "restore") {
        m_panel->restore();
        reply["result"] = true;
    } else if (op == "save") {
        m_panel->save();
        reply["result"] = true;
    } else if (op == "shouldPrint") {
        m_panel->shouldPrint();
        reply["result"] = true;
    } else if (op == "supportedKeys") {
        reply["keys"] = QJsonArray::fromStringList(m_panel->supportedKeys());
    } else if (op == "summary") {
        reply["summary"] = m_panel->summary();
    } else {
        return false;
    }
    return true;
}

bool DriverModel::click(const QJsonObject &request)
{
    const auto row = std::ranges::find_if(rows, [&request](Row candidate) {
        return request["control"] == QLatin1String(namesOf(candidate).box);
    });
    if (row == rows.end() || !canUse((*m_panel->view)[*row], request))
        return false;
    m_panel->click(*row);
    return true;
}

bool DriverModel::runUserAction(const QString &op, const QJsonObject &request)
{
    if (!isForceValid(request))
        return false;
    if (op == "click")
        return click(request);
    if (op == "type") {
        if (!request["text"].isString() || !canUse(m_panel->view->countField, request))
            return false;
        m_panel->type(request["text"].toString());
        return true;
    }
    if (op == "step") {
        const auto value = integerOf(request["value"]);
        if (!value || !canUse(m_panel->view->countStepper, request))
            return false;
        m_panel->step(*value);
        return true;
    }
    if (op == "choosePreset") {
        const auto tag = integerOf(request["tag"]);
        if (!tag || !m_panel->view->presets.contains(*tag))
            return false;
        if (!isForced(request) && !m_panel->isPresetAllowed(*tag))
            return false;
        m_panel->choosePreset(*tag);
        return true;
    }
    return false;
}

bool DriverModel::runOutsideChange(const QString &op, const QJsonObject &request)
{
    if (op == "paper")
        return changePaper(request);
    if (op == "ppdChange")
        return changeKeyword(request);
    if (op == "mark") {
        if (!request["keyword"].isString() || !request["choice"].isString())
            return false;
        m_dialog->mark(request["keyword"].toString(), request["choice"].toString());
        return true;
    }
    if (op == "keyWindow") {
        const auto height = request["height"];
        if (!height.isDouble() && !height.isNull())
            return false;
        m_dialog->keyWindowHeight = height.isDouble() ? std::optional(height.toDouble()) : std::nullopt;
        return true;
    }
    if (op == "trackingAreasUpdated") {
        m_panel->trackingAreasUpdated();
        return true;
    }
    return false;
}

bool DriverModel::changePaper(const QJsonObject &request)
{
    auto paper = m_dialog->paper;
    if (!isMissing(request, "paper") && !readPaper(request["paper"], paper))
        return false;
    if (!isTextOrNull(request["ticket"]))
        return false;
    m_dialog->paper = paper;
    if (!isMissing(request, "ticket"))
        m_dialog->ticket = textOf(request["ticket"]);
    m_panel->paperChanged();
    return true;
}

bool DriverModel::changeKeyword(const QJsonObject &request)
{
    if (isMissing(request, "keyword") || isMissing(request, "choice") || !isTextOrNull(request["keyword"]) ||
        !isTextOrNull(request["choice"]))
        return false;
    const auto keyword = textOf(request["keyword"]);
    const auto choice = textOf(request["choice"]);
    if (keyword && choice) {
        m_dialog->mark(*keyword, *choice);
        m_dialog->record(*keyword, *choice);
    }
    m_panel->keywordChanged(keyword, choice);
    return true;
}

bool DriverModel::tapeInfo(const QJsonObject &request, QJsonObject &reply) const
{
    std::optional<Paper> paper;
    if (!readPaper(paperOrNull(request), paper) || !isTextOrNull(request["ticket"]))
        return false;
    const auto info = m_dialog->tapeInfo(paper, textOf(request["ticket"]));
    reply["status"] = info.status;
    reply["length"] = info.length;
    reply["kind"] = info.kind;
    reply["name"] = info.name ? QJsonValue(*info.name) : QJsonValue();
    return true;
}

bool DriverModel::runReadBack(const QString &op, const QJsonObject &request, QJsonObject &reply)
{
    if (op == "state") {
        reply["state"] = m_panel->state();
    } else if (op == "names") {
        reply["panelName"] = m_localize("OP_PANEL_NAME");
        reply["panelKind"] = "jp.co.vendor.printer.cups.pde.OptionPDEKind";
        reply["shouldHide"] = true;
        reply["shouldShowHelp"] = false;
    } else if (op == "localized" && request["key"].isString()) {
        reply["text"] = m_localize(request["key"].toString());
    } else if (op == "tapeInfo") {
        return tapeInfo(request, reply);
    } else {
        return false;
    }
    return true;
}

} // namespace model
