// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QLabel;

namespace dialog {

/// A message across the dialog that stays until it is settled. Hidden while there is none.
class Banner : public QFrame {
    Q_OBJECT

public:
    explicit Banner(QWidget *parent);

    /// Shows the message; an empty one hides the banner.
    void setMessage(const QString &message);
    QString message() const;

private:
    QLabel *m_text;
};

} // namespace dialog
