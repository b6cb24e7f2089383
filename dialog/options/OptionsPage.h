// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/Constraints.h>
#include <host/printer/PpdFile.h>

#include <QWidget>

class QLabel;
class QListWidget;
class QStackedWidget;

namespace dialog {
inline namespace options {

class OptionGroupPage;

/// All options of the PPD that are not set elsewhere, in the PPD's groups and with its texts. Left out are
/// the paper, which has its own list; the options that a panel takes care of; what the printer is fitted
/// with, which is a fact of the printer and not of a job; and options that leave nothing to choose.
///
/// The page shows what the PPD has marked and tells what the user chooses. Its owner marks that, calls
/// refresh(), and gives it the conflicts. No choice is hidden or disabled because of another.
class OptionsPage : public QWidget {
    Q_OBJECT

public:
    /// The PPD is borrowed, localized already, and must outlive the page.
    OptionsPage(host::PpdFile &ppd, const QStringList &claimedKeywords, QWidget *parent);

    /// Whether such a page would have anything to choose.
    static bool hasOptions(const host::PpdFile &ppd, const QStringList &claimedKeywords);

    /// Shows what the PPD has marked now, quietly.
    void refresh();
    /// Shows the conflicts at their options and at the groups that hold these; an empty list clears them.
    void setConflicts(const std::vector<host::Conflict> &conflicts);

    /// The text of the group that is shown; empty when there is none.
    QString shownGroup() const;
    /// Shows the group of that text, if there is one.
    void showGroup(const QString &text);

Q_SIGNALS:
    /// The user chose this: a choice by its PPD name, for options with several a list with commas, or a free
    /// value as host::freeChoiceValue() writes it. Empty when of several none is chosen and the PPD has no
    /// name for that.
    void chosen(const QByteArray &keyword, const QByteArray &value);

private:
    void addGroup(const QString &text, const std::vector<QByteArray> &keywords);
    void layOut();
    void fitGroups();

    host::PpdFile &m_ppd;
    QListWidget *m_groups;
    QStackedWidget *m_stack;
    std::vector<OptionGroupPage *> m_pages;
};

} // namespace options
} // namespace dialog
