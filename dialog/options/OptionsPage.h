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

/// All options of the PPD that are not set elsewhere, in the PPD's groups and with its texts. The page omits
/// the paper, which has its own list; the options that a panel claims; InstallableOptions, which describe the
/// printer and not a job; and options that the user cannot change.
///
/// The page shows the choices that are marked in the PPD and emits chosen() when the user makes another
/// choice. The owner marks that choice, calls refresh(), and passes the conflicts to setConflicts(). No
/// choice is hidden or disabled because of another choice.
class OptionsPage : public QWidget {
    Q_OBJECT

public:
    /// The PPD must be localized already; it is not owned and must outlive the page. The page omits the
    /// options with the claimed keywords, which a panel shows.
    OptionsPage(host::PpdFile &ppd, const QStringList &claimedKeywords, QWidget *parent);

    /// Returns whether a page for these arguments would show at least one option.
    static bool hasOptions(const host::PpdFile &ppd, const QStringList &claimedKeywords);

    /// Shows the choices that are marked in the PPD now, without emitting a signal.
    void refresh();
    /// Shows the conflicts below their options and in the list of groups; an empty list removes them.
    void setConflicts(const std::vector<host::Conflict> &conflicts);

    /// Returns the text of the group that is shown; absent if the page has no groups.
    std::optional<QString> shownGroup() const;
    /// Shows the group with this text. Does nothing if there is no such group.
    void showGroup(const QString &text);

Q_SIGNALS:
    /// Emitted when the user has chosen a value: the PPD name of a choice, a comma-separated list of names
    /// for a PickMany option, or a custom value as host::customChoiceValue() writes it. The value is empty if
    /// no choice of a PickMany option is selected and the PPD has no choice that means "none".
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
