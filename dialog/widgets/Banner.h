// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QLabel;
class QScrollArea;

namespace dialog {
inline namespace widgets {

class ElidedButton;

/// A message across the full width of the dialog, with optional buttons that remove its cause. It stays until
/// the cause is removed, and is hidden while the message is empty. A long message is scrolled, so that no
/// message makes the window larger than the screen.
class Banner : public QFrame {
    Q_OBJECT

public:
    /// Creates a hidden banner.
    explicit Banner(QWidget *parent);

    /// Shows the message as plain text; an empty message hides the banner. The other two parameters are the
    /// texts of the buttons; a button with an empty text is hidden.
    void setMessage(const QString &message, const QString &remedy = {}, const QString &alternative = {});
    /// Returns the message that is shown; empty while the banner is hidden.
    QString message() const;

Q_SIGNALS:
    /// Emitted when the remedy button is clicked.
    void remedyClicked();
    /// Emitted when the alternative button is clicked.
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

    // Null until the first message that is not empty; most dialogs never show one.
    QLabel *m_text = nullptr;
    /// The area in which the text scrolls.
    QScrollArea *m_view = nullptr;
    ElidedButton *m_remedy = nullptr;
    /// Offers another solution than the remedy.
    ElidedButton *m_alternative = nullptr;
};

} // namespace widgets
} // namespace dialog
