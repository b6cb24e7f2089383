// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/Constraints.h>
#include <host/printer/PpdOptions.h>

#include <QDeadlineTimer>
#include <QScrollArea>

class QFormLayout;
class QVBoxLayout;

namespace dialog {
inline namespace options {

class OptionControl;

/// The controls of one group of options, one below the other. They are made when the page is first shown:
/// there are PPDs with thousands of choices in groups that hardly anybody opens. Those that take longer than
/// a moment follow in slices, in their order, so that the window never stalls.
class OptionGroupPage : public QScrollArea {
    Q_OBJECT

public:
    /// The options are shown in the given order. The PPD is borrowed.
    OptionGroupPage(const host::PpdFile &ppd, std::vector<QByteArray> keywords, QWidget *parent);

    /// Shows what is marked now, quietly.
    void refresh();
    /// Shows each conflict at the options that it involves; sentences by keywords.
    void setConflicts(const QHash<QString, QStringList> &sentences);
    /// The sentences about options of this group.
    QStringList conflictSentences() const;

Q_SIGNALS:
    /// The user chose this, as a job carries it.
    void chosen(const QByteArray &keyword, const QByteArray &value);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void build();
    /// Adds a form of options, fewer when the deadline expires, and continues in an event of its own.
    void buildSlice(QDeadlineTimer deadline);
    void addForm();
    int labelWidth() const;
    OptionControl *addControl(const host::PpdOption &option);
    QStringList sentencesAbout(const QByteArray &keyword) const;
    void showConflicts();

    const host::PpdFile &m_ppd;
    std::vector<QByteArray> m_keywords;
    std::vector<OptionControl *> m_controls;
    QHash<QString, QStringList> m_conflicts;
    /// The forms, one below the other; null until the page is shown.
    QVBoxLayout *m_column = nullptr;
    /// Where controls are being added.
    QFormLayout *m_form = nullptr;
    /// So that the fields of all forms begin at one place; 0 while there is only one.
    int m_labelWidth = 0;
    /// The option that is built next.
    std::size_t m_next = 0;
};

} // namespace options
} // namespace dialog
