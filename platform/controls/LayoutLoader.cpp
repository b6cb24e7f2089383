// SPDX-License-Identifier: Apache-2.0
#include "LayoutLoader.h"

#include "CheckBox.h"
#include "PopUpButton.h"
#include "StaticText.h"
#include "Stepper.h"
#include "TextField.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QMap>
#include <QUiLoader>

namespace platform {
inline namespace controls {

namespace {

template<typename Widget>
LayoutLoader::Factory makerOf()
{
    return [](QWidget *parent) -> QWidget * { return new Widget(parent); };
}

QMap<QString, LayoutLoader::Factory> &factories()
{
    static QMap<QString, LayoutLoader::Factory> registered{
        {QStringLiteral("CheckBox"), makerOf<CheckBox>()},
        {QStringLiteral("PopUpButton"), makerOf<PopUpButton>()},
        {QStringLiteral("StaticText"), makerOf<StaticText>()},
        {QStringLiteral("Stepper"), makerOf<Stepper>()},
        {QStringLiteral("TextField"), makerOf<TextField>()},
    };
    return registered;
}

QMap<QString, LayoutLoader::Hook> &hooks()
{
    static QMap<QString, LayoutLoader::Hook> registered;
    return registered;
}

class WidgetBuilder : public QUiLoader {
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        const auto factory = factories().constFind(className);
        if (factory == factories().constEnd())
            return QUiLoader::createWidget(className, parent, name);
        QWidget *const widget = (*factory)(parent);
        widget->setObjectName(name);
        return widget;
    }
};

/// Creates the builder while Qt has no library paths: a QUiLoader loads every Designer plug-in that it finds
/// when it is created. Those belong to other programs, take tens of milliseconds and are of no use in a print
/// dialog.
std::unique_ptr<WidgetBuilder> makeBuilder()
{
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    auto builder = std::make_unique<WidgetBuilder>();
    QCoreApplication::setLibraryPaths(paths);
    builder->setTranslationEnabled(false);
    return builder;
}

/// Mirrors the layout for a right-to-left language: fixed positions have no reading direction.
void mirror(QWidget *view)
{
    for (QWidget *const child : view->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        child->move(view->width() - child->x() - child->width(), child->y());
}

} // namespace

void LayoutLoader::registerWidgetClass(const QString &className, const Factory &factory)
{
    factories().insert(className, factory);
}

void LayoutLoader::registerHook(const QString &name, const Hook &hook)
{
    hooks().insert(name, hook);
}

LayoutLoader::Result LayoutLoader::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {nullptr, QStringLiteral("%1: %2").arg(path, file.errorString())};

    static const std::unique_ptr<WidgetBuilder> builder = makeBuilder();
    std::unique_ptr<QWidget> view(builder->load(&file));
    if (!view)
        return {nullptr,
                QStringLiteral("%1: not a layout file: %2").arg(path, builder->errorString().simplified())};

    if (QGuiApplication::isRightToLeft())
        mirror(view.get());
    QList<QWidget *> widgets = view->findChildren<QWidget *>();
    widgets.prepend(view.get());
    for (const Hook &hook : std::as_const(hooks())) {
        for (QWidget *const widget : std::as_const(widgets))
            hook(widget);
    }
    return {std::move(view), {}};
}

} // namespace controls
} // namespace platform
