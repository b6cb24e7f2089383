// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdOptions.h>

#include <QWidget>

class QVBoxLayout;

namespace dialog {
inline namespace options {

class ConflictNote;

/// What the user sets an option of the PPD with, and below it what is wrong with the choice. It shows what is
/// marked and tells what the user chose; it marks nothing.
class OptionControl : public QWidget {
    Q_OBJECT

public:
    const QByteArray &keyword() const { return m_keyword; }
    /// The widget that a label before the control belongs to; null for controls that bear their own title.
    virtual QWidget *labelled() const { return nullptr; }

    /// Shows what is marked, quietly.
    virtual void showMarked(const host::PpdOptions &options) = 0;
    /// Shows these sentences below the control; none takes them away.
    void setConflicts(const QStringList &sentences);

Q_SIGNALS:
    /// The user chose this, as a job carries it.
    void chosen(const QByteArray &value);

protected:
    OptionControl(const host::PpdOption &option, QWidget *parent);

    /// Where the controls go, one below the other.
    QVBoxLayout *column() const { return m_column; }
    /// The widgets that screen readers speak the conflicts at.
    virtual QList<QWidget *> spoken() const = 0;

private:
    QByteArray m_keyword;
    QVBoxLayout *m_column;
    /// Null until there is a conflict: most options never have one.
    ConflictNote *m_note = nullptr;
};

} // namespace options
} // namespace dialog
