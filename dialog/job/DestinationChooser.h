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

/// The choice of the printer: queues, classes and instances of the server, and how the chosen one is. What is
/// known only from last time is shown as such.
class DestinationChooser : public QWidget {
    Q_OBJECT

public:
    /// The session is borrowed.
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
