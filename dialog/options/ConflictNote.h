// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

namespace dialog {
inline namespace widgets {
class FittedLabel;
} // namespace widgets
} // namespace dialog

namespace dialog {
inline namespace options {

/// Describes, next to a control, the conflicts of its current choice. Hidden while there are none.
class ConflictNote : public QWidget {
    Q_OBJECT

public:
    /// Creates a hidden note.
    explicit ConflictNote(QWidget *parent);

    /// Shows the first of these sentences; the tool tip and the accessible name contain all of them. An empty
    /// list hides the note.
    void setSentences(const QStringList &sentences);

private:
    void build();

    /// Null until the first conflict.
    FittedLabel *m_text = nullptr;
};

} // namespace options
} // namespace dialog
