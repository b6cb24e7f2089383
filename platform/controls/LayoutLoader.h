// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace platform {
inline namespace controls {

/// Builds a panel's view from its layout file (Qt Designer's format).
///
/// Knows the platform's own controls (CheckBox, StaticText, Stepper, PopUpButton, TextField) by their class
/// names; other folders add classes of theirs, and hooks that look at finished widgets, before a layout that
/// needs them is loaded. In a right-to-left language the layout is mirrored as a whole.
class LayoutLoader {
public:
    using Factory = std::function<QWidget *(QWidget *parent)>;
    using Hook = std::function<void(QWidget *widget)>;

    /// A loaded view, or the reason why there is none: the file and what is wrong with it.
    struct Result {
        std::unique_ptr<QWidget> view;
        QString error;
    };

    /// Makes widgets of that class name by the factory; a later registration of the name replaces it.
    static void registerWidgetClass(const QString &className, const Factory &factory);

    /// Calls the hook for every widget of a loaded layout, once its properties are set.
    static void registerHook(const QString &name, const Hook &hook);

    /// Loads the file at path.
    static Result load(const QString &path);
};

} // namespace controls
} // namespace platform
