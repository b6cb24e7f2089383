// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace dialog {

/// A message across the dialog that stays until it is settled, with a button to settle it where there is one.
/// Hidden while there is no message.
class Banner : public QFrame {
    Q_OBJECT

public:
    explicit Banner(QWidget *parent);

    /// Shows the message; an empty one hides the banner. The button says what it does; empty for no button.
    void setMessage(const QString &message, const QString &remedy = {});
    QString message() const;

Q_SIGNALS:
    void remedyClicked();

private:
    void prepare();

    QLabel *m_icon;
    QLabel *m_text;
    QPushButton *m_remedy;
};

} // namespace dialog
