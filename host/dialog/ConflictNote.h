// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

class QLabel;

namespace dialog {

/// Tells, beside what was chosen, with what else it cannot be printed. Hidden while there is nothing to tell.
class ConflictNote : public QWidget {
    Q_OBJECT

public:
    explicit ConflictNote(QWidget *parent);

    /// Shows these sentences, of many the first ones; none hides the note. All are in the tool tip.
    void setSentences(const QStringList &sentences);

    /// Its height follows the width by fixed heights: windows squeeze whatever stands beside a widget that
    /// asks for the height by itself.
    bool hasHeightForWidth() const override { return false; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void build();
    void fitText();

    // Null until there is something to tell.
    QLabel *m_icon = nullptr;
    QLabel *m_text = nullptr;
};

} // namespace dialog
