// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/queues/QueueSession.h>

#include <QWidget>

class QComboBox;
class QLabel;

namespace dialog {
inline namespace widgets {
class FittedLabel;
} // namespace widgets
} // namespace dialog

namespace dialog {
inline namespace job {

/// A list of the server's queues, classes and instances, with the state of the chosen one. A state from the
/// cache is marked as the last known one.
class DestinationChooser : public QWidget {
    Q_OBJECT

public:
    /// The session is not owned and must outlive the widget. The widget follows the session's signals and
    /// passes the user's choice to it.
    DestinationChooser(host::QueueSession &session, QWidget *parent);

protected:
    void enterEvent(QEnterEvent *event) override;

private:
    void showDestinations();
    void showChosen();
    void showState();
    QString stateText() const;

    host::QueueSession &m_session;
    QComboBox *m_list;
    QLabel *m_icon;
    FittedLabel *m_state;
};

} // namespace job
} // namespace dialog
