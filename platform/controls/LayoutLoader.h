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
/// Supports the platform's own controls (CheckBox, StaticText, Stepper, PopUpButton, TextField) by their
/// class names. Other folders register their own classes, and hooks that inspect finished widgets, before
/// they load a layout that needs them. In a right-to-left language, the whole layout is mirrored.
class LayoutLoader {
public:
    /// Creates a widget that parent owns.
    using Factory = std::function<QWidget *(QWidget *parent)>;
    /// Called for each widget of a loaded layout.
    using Hook = std::function<void(QWidget *widget)>;

    /// A loaded view; if it is null, error holds the file and the reason.
    struct Result {
        std::unique_ptr<QWidget> view;
        QString error;
    };

    /// Registers the factory for widgets of the class; replaces an earlier registration of the name.
    static void registerWidgetClass(const QString &className, const Factory &factory);

    /// Registers a hook that is called for every widget of a loaded layout after the widget's properties are
    /// set; replaces an earlier registration of the name.
    static void registerHook(const QString &name, const Hook &hook);

    /// Loads the layout file at path.
    static Result load(const QString &path);
};

} // namespace controls
} // namespace platform
