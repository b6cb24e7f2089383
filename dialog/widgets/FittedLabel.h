// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace dialog {
inline namespace widgets {

/// Plain words of any length that wrap and keep their window in shape. Windows take no notice of the lines
/// that a wrapped text needs, and squeeze whatever stands beside it; so this label asks for a height of its
/// own, which follows its width: so many lines as the words need, but never fewer than some, lest the window
/// jumps whenever words change, and never more than some, for no window has room for novels.
class FittedLabel : public QLabel {
    Q_OBJECT

public:
    FittedLabel(int fewestLines, int mostLines, QWidget *parent);

    void setWords(const QString &words);

    bool hasHeightForWidth() const override { return false; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fit();

    int m_fewestLines;
    int m_mostLines;
};

} // namespace widgets
} // namespace dialog
