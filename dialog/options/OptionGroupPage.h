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

/// The controls of one group of options, one below the other. They are created when the page is first shown,
/// because some PPDs have thousands of choices in groups that are rarely opened. Large groups are built in
/// slices, in their order, so that the window stays responsive.
class OptionGroupPage : public QScrollArea {
    Q_OBJECT

public:
    /// The options are shown in the order of the keywords; keywords that the PPD does not have are skipped.
    /// The PPD is not owned and must outlive the page.
    OptionGroupPage(const host::PpdFile &ppd, std::vector<QByteArray> keywords, QWidget *parent);

    /// Shows the choices that are marked now, without emitting a signal.
    void refresh();
    /// Shows the conflicts below the options that they involve. The sentences are given by the options'
    /// keywords.
    void setConflicts(const QHash<QString, QStringList> &sentences);
    /// Returns the sentences about the options of this group, each once.
    QStringList conflictSentences() const;

Q_SIGNALS:
    /// Emitted when the user has chosen a value, which is as a job contains it.
    void chosen(const QByteArray &keyword, const QByteArray &value);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void build();
    /// Adds a form with the next options, with fewer of them if the deadline expires, and continues in a
    /// later event.
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
    /// Contains the forms, one below the other; null until the page is shown.
    QVBoxLayout *m_column = nullptr;
    /// The form to which controls are added now.
    QFormLayout *m_form = nullptr;
    /// Aligns the fields of all forms, in pixels; 0 if there is only one form.
    int m_labelWidth = 0;
    /// The index of the option that is built next.
    std::size_t m_next = 0;
};

} // namespace options
} // namespace dialog
