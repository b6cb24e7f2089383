// SPDX-License-Identifier: Apache-2.0
// The dialog's appearance, its accessible names, and its keyboard access.
#include "DialogFixture.h"

#include <QAccessible>
#include <QDir>
#include <QPointer>
#include <QScrollBar>

namespace {

class DialogLookTest : public DialogTest {};

} // namespace

TEST_F(DialogLookTest, EveryFieldHasANameForScreenReaders)
{
    open();
    for (QWidget *const widget : window->findChildren<QWidget *>()) {
        const bool reachable = widget->focusPolicy() & Qt::TabFocus && widget->isVisibleTo(window.get());
        // The panel names its own controls.
        const bool own = !box("mCutEveryChkBx")->parentWidget()->isAncestorOf(widget);
        if (!reachable || !own || widget->parentWidget()->inherits("QAbstractSpinBox"))
            continue;
        const QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(spoken) << widget->metaObject()->className();
        const bool named = !spoken->text(QAccessible::Name).isEmpty();
        EXPECT_TRUE(named || widget->inherits("QTabBar") || widget->inherits("QScrollArea"))
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
}

TEST_F(DialogLookTest, AClosedWindowIsForgottenByScreenReaders)
{
    open();
    struct Spoken {
        QPointer<QWidget> widget;
        QAccessible::Id id;
        QByteArray kind;
    };
    std::vector<Spoken> all;
    for (QWidget *const widget : window->findChildren<QWidget *>()) {
        if (QAccessibleInterface *const known = QAccessible::queryAccessibleInterface(widget))
            all.push_back({widget, QAccessible::uniqueId(known), widget->metaObject()->className()});
    }
    window.reset();
    int gone = 0;
    for (const Spoken &spoken : all) {
        // The panel keeps its view.
        if (spoken.widget)
            continue;
        ++gone;
        EXPECT_FALSE(QAccessible::accessibleInterface(spoken.id)) << spoken.kind.constData();
    }
    EXPECT_GT(gone, 20);
}

TEST_F(DialogLookTest, TheStripScrollsByKeysAndWheel)
{
    // Without the panel, which the window is never narrower than.
    open(QStringLiteral("/nowhere"));
    auto *const strip = qobject_cast<QAbstractScrollArea *>(find<QWidget>(QStringLiteral("Label strip")));
    window->resize(500, 500);
    QApplication::processEvents();
    ASSERT_GT(strip->horizontalScrollBar()->maximum(), 0);
    strip->setFocus();
    QTest::keyClick(strip, Qt::Key_Right);
    const int afterKey = strip->horizontalScrollBar()->value();
    EXPECT_GT(afterKey, 0);
    QWheelEvent wheel({50, 50}, strip->mapToGlobal(QPointF(50, 50)), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(strip->viewport(), &wheel);
    EXPECT_GT(strip->horizontalScrollBar()->value(), afterKey);
}

TEST_F(DialogLookTest, ThePanelIsWholeThoughThereAreNoOtherOptions)
{
    // All of this printer's options are the panel's.
    open();
    const QWidget *const view = keeper->setup()->panels().front()->view();
    const auto *const pages = window->findChild<QTabWidget *>();
    ASSERT_EQ(pages->count(), 3);
    EXPECT_TRUE(window->rect().contains(QRect(view->mapTo(window.get(), QPoint()), view->size())));
    EXPECT_TRUE(pages->rect().contains(QRect(view->mapTo(pages, QPoint()), view->size())));
    window->resize(window->minimumSize());
    QApplication::processEvents();
    EXPECT_GE(pages->currentWidget()->width(), view->width());
}

TEST_F(DialogLookTest, IsDrawnInLightAndDarkAndRightToLeft)
{
    const QString pictures = QStringLiteral(KV_BINARY_DIR "/test-results/pictures");
    ASSERT_TRUE(QDir().mkpath(pictures));
    const QPalette usual = QApplication::palette();
    QPalette dark(QColor(0x30, 0x33, 0x38), QColor(0x25, 0x28, 0x2c));
    dark.setColor(QPalette::Base, QColor(0x1d, 0x1f, 0x22));
    struct Row {
        const char *name;
        const QPalette *palette;
        Qt::LayoutDirection direction;
    };
    for (const Row &row : {Row{"light", &usual, Qt::LeftToRight}, Row{"dark", &dark, Qt::LeftToRight},
                           Row{"right-to-left", &usual, Qt::RightToLeft}}) {
        QApplication::setPalette(*row.palette);
        QApplication::setLayoutDirection(row.direction);
        open();
        click(box("mCutEveryChkBx"));
        click(box("mChainPrintChkBx"));
        const QImage picture = window->grab().toImage();
        EXPECT_TRUE(picture.save(pictures + u'/' + QLatin1String(row.name) + QStringLiteral(".png")));
        // The tape stays white, and the window's ground is the theme's.
        EXPECT_EQ(QColor(picture.pixel(2, picture.height() - 3)), row.palette->color(QPalette::Window))
            << row.name;
    }
    QApplication::setPalette(usual);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}
