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

/// Tells, beside what was chosen, with what else it cannot be printed. Hidden while there is nothing to tell.
class ConflictNote : public QWidget {
    Q_OBJECT

public:
    explicit ConflictNote(QWidget *parent);

    /// Shows these sentences, of many the first ones; none hides the note. All are in the tool tip.
    void setSentences(const QStringList &sentences);

private:
    void build();

    /// Null until there is something to tell.
    FittedLabel *m_text = nullptr;
};

} // namespace options
} // namespace dialog
