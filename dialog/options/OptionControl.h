// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdOptions.h>

#include <QWidget>

class QVBoxLayout;

namespace dialog {
inline namespace options {

class ConflictNote;

/// Base class of the controls for an option of the PPD. It shows the marked choice, and below it the
/// conflicts of that choice. It emits what the user chooses, but does not mark it.
class OptionControl : public QWidget {
    Q_OBJECT

public:
    /// Returns the option's keyword, without an asterisk.
    const QByteArray &keyword() const { return m_keyword; }
    /// Returns the buddy for a label in front of the control; null for controls that have their own title.
    virtual QWidget *labelled() const { return nullptr; }

    /// Shows the marked choices of the option without emitting a signal.
    virtual void showMarked(const host::PpdOptions &options) = 0;
    /// Shows the sentences that describe the option's conflicts below the control; an empty list removes
    /// them.
    void setConflicts(const QStringList &sentences);

Q_SIGNALS:
    /// Emitted when the user has chosen a value, which is as a job contains it.
    void chosen(const QByteArray &value);

protected:
    OptionControl(const host::PpdOption &option, QWidget *parent);

    /// The layout to which subclasses add their widgets, one below the other.
    QVBoxLayout *column() const { return m_column; }
    /// The widgets whose accessible descriptions contain the conflicts.
    virtual QList<QWidget *> spoken() const = 0;

private:
    QByteArray m_keyword;
    QVBoxLayout *m_column;
    /// Null until the first conflict; most options never have one.
    ConflictNote *m_note = nullptr;
};

} // namespace options
} // namespace dialog
