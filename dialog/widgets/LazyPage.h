// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <functional>

namespace dialog {
inline namespace widgets {

/// A page that is filled when it is shown for the first time: most dialogs are printed from without a look at
/// most pages, and all of them open the sooner for it.
class LazyPage : public QWidget {
    Q_OBJECT

public:
    /// What fills the page; its parent is the page, which owns it.
    using Maker = std::function<QWidget *(QWidget *parent)>;

    LazyPage(Maker maker, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;

private:
    Maker m_maker;
};

} // namespace widgets
} // namespace dialog
