// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QLabel;
class QScrollArea;

namespace dialog {
inline namespace widgets {

class ElidedButton;

/// A message across the dialog that stays until it is settled, with a button to settle it where there is one.
/// Hidden while there is no message. A long message is scrolled, so that no message makes the window larger
/// than a screen.
class Banner : public QFrame {
    Q_OBJECT

public:
    explicit Banner(QWidget *parent);

    /// Shows the message; an empty one hides the banner. The buttons say what they do; empty for no button.
    void setMessage(const QString &message, const QString &remedy = {}, const QString &alternative = {});
    QString message() const;

Q_SIGNALS:
    void remedyClicked();
    void alternativeClicked();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void build();
    ElidedButton *makeButton();
    static void setButton(ElidedButton *button, const QString &text);
    void fitText();

    // Null until there is something to tell; most dialogs never have any of it.
    QLabel *m_text = nullptr;
    /// Where the text is scrolled.
    QScrollArea *m_view = nullptr;
    ElidedButton *m_remedy = nullptr;
    /// For what can be done instead.
    ElidedButton *m_alternative = nullptr;
};

} // namespace widgets
} // namespace dialog
