// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>

namespace platform {
inline namespace controls {

/// A text field that emits textEdited() for every edit of the user, including edits by assistive technology.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    explicit TextField(QWidget *parent = nullptr);

    /// Replaces the text as one edit of the user. Does nothing while the field is disabled or read-only.
    void enterText(const QString &text);
    /// Returns the offset between two characters that is nearest to the point, in the field's coordinates.
    int offsetAt(QPoint point) { return cursorPositionAt(point); }
};

} // namespace controls
} // namespace platform
