// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>

namespace platform {
inline namespace controls {

/// A text field that reports every edit of the user by textEdited(), those by assistive technology included.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    explicit TextField(QWidget *parent = nullptr);

    /// Replaces the text as one edit of the user. Does nothing while the field is disabled or read-only.
    void enterText(const QString &text);
    /// The place between two characters that is nearest to the point in the field.
    int offsetAt(QPoint point) { return cursorPositionAt(point); }
};

} // namespace controls
} // namespace platform
