// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace dialog {
inline namespace widgets {

/// A label for a plain text of any length that wraps. A window's layout ignores the height that a wrapped
/// text needs and squeezes the widgets beside it; this label therefore sets its own fixed height, which
/// follows its width: the number of lines that the text needs, but at least a minimum, so that the window
/// does not change its size with every text, and at most a maximum.
class FittedLabel : public QLabel {
    Q_OBJECT

public:
    /// Both limits are heights in lines of text.
    FittedLabel(int minLines, int maxLines, QWidget *parent);

    /// Sets the text, which is shown as plain text, and adjusts the height.
    void setMessage(const QString &words);

    /// Returns false: the height is fixed, although the text wraps.
    bool hasHeightForWidth() const override { return false; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fit();

    int m_minLines;
    int m_maxLines;
};

} // namespace widgets
} // namespace dialog
