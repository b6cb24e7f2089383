// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <functional>

namespace dialog {
inline namespace widgets {

/// A page whose content is created when the page is shown for the first time. Most jobs are printed without
/// opening most pages, so the dialog opens faster.
class LazyPage : public QWidget {
    Q_OBJECT

public:
    /// Creates the content of the page. The page is its parent and owns it.
    using Maker = std::function<QWidget *(QWidget *parent)>;

    /// Calls the maker once, when the page is first shown, and then destroys it.
    LazyPage(Maker maker, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;

private:
    Maker m_maker;
};

} // namespace widgets
} // namespace dialog
