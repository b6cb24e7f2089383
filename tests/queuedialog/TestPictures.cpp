// SPDX-License-Identifier: Apache-2.0
// Pictures of every state of the dialog, for people to look at; and what can be checked of them without eyes:
// that no text is cut off and that windows fit on small screens.
#include "FullPpd.h"
#include "QueueDialogFixture.h"

#include <dialog/job/JobWindow.h>
#include <dialog/job/PasswordDialog.h>
#include <dialog/options/OptionControl.h>
#include <dialog/translations/Translations.h>
#include <tests/samples/SamplePpd.h>
#include <tests/servers/FaultyServer.h>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTabWidget>

namespace {

class PicturesTest : public QueueDialogTest, public testing::WithParamInterface<const char *> {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("full"), fullPpd(),
                        {QStringLiteral("-D"), QStringLiteral("Label printer beside the window")});
        cupsd->addRawQueue(QStringLiteral("raw"));
    }

    void SetUp() override
    {
        QueueDialogTest::SetUp();
        m_usual = QApplication::palette();
        // To look at another language: KV_PICTURES_LANGUAGE=de
        static const bool isTranslated = [] {
            const QString language = qEnvironmentVariable("KV_PICTURES_LANGUAGE");
            if (!language.isEmpty())
                dialog::installTranslations(QLocale(language));
            return !language.isEmpty();
        }();
        static_cast<void>(isTranslated);
        const QString look = QLatin1String(GetParam());
        if (look == QStringLiteral("dark")) {
            QPalette dark(QColor(0x30, 0x33, 0x38), QColor(0x25, 0x28, 0x2c));
            dark.setColor(QPalette::Base, QColor(0x1d, 0x1f, 0x22));
            QApplication::setPalette(dark);
        }
        if (look == QStringLiteral("right-to-left"))
            QApplication::setLayoutDirection(Qt::RightToLeft);
    }

    void TearDown() override
    {
        QueueDialogTest::TearDown();
        QApplication::setPalette(m_usual);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    static void take(QWidget *shown, const QString &name)
    {
        QApplication::processEvents();
        const QString folder =
            qEnvironmentVariable("KV_PICTURES", QStringLiteral(KV_BINARY_DIR "/test-results/pictures"));
        ASSERT_TRUE(QDir().mkpath(folder));
        EXPECT_TRUE(shown->grab().save(
            folder + QStringLiteral("/queue-%1-%2.png").arg(name, QLatin1String(GetParam()))));
        // Screens of notebooks show about as much.
        EXPECT_LE(shown->width(), 1280) << name.toStdString();
        EXPECT_LE(shown->height(), 720) << name.toStdString();
        expectNothingCutOff(shown, name);
    }

    /// Labels and buttons have the room that their texts need.
    static void expectNothingCutOff(const QWidget *shown, const QString &name)
    {
        for (const QLabel *const label : shown->findChildren<QLabel *>()) {
            if (!label->isVisible() || label->text().isEmpty() || label->visibleRegion().isEmpty())
                continue;
            const int needed =
                label->wordWrap() ? label->heightForWidth(label->width()) : label->fontMetrics().height();
            EXPECT_GE(label->height() + 1, needed)
                << name.toStdString() << ": " << label->text().toStdString();
            const int widest = label->wordWrap() ? 0 : label->sizeHint().width();
            EXPECT_GE(label->width() + 1, widest)
                << name.toStdString() << ": " << label->text().toStdString();
        }
        for (const QAbstractButton *const each : shown->findChildren<QAbstractButton *>()) {
            const bool counts =
                each->isVisible() && !each->text().isEmpty() && !each->visibleRegion().isEmpty();
            EXPECT_GE(each->width() + 1, counts ? each->minimumSizeHint().width() : 0)
                << name.toStdString() << ": " << each->text().toStdString();
        }
    }

private:
    QPalette m_usual;
};

} // namespace

TEST_P(PicturesTest, EveryStateOfTheDialog)
{
    {
        const FaultyServer silent(0, {.silent = true});
        host::CupsServer server;
        server.address = silent.address();
        open(QStringLiteral("full"), server);
        take(window.get(), QStringLiteral("waiting"));
        close();
    }
    openAndSettle(QStringLiteral("full"));
    auto *const pages = window->findChild<QTabWidget *>();
    for (int i = 0; i < pages->count(); ++i) {
        pages->setCurrentIndex(i);
        take(window.get(), QStringLiteral("page%1").arg(i));
    }
    const QSize before = window->size();
    keeper->setup()->choose("Darkness", "Dark");
    keeper->setup()->choose("Turbo", "True");
    pages->setCurrentIndex(1);
    take(window.get(), QStringLiteral("conflict"));
    // A banner must not make the window wider.
    EXPECT_EQ(window->width(), before.width());

    cupsd->pause(QStringLiteral("full"), QStringLiteral("Changing the roll"));
    EXPECT_TRUE(waitUntil([this] { return session->chosen()->state == host::QueueState::Paused; }));
    dialog::JobSender &jobSender = *sender;
    pages->setCurrentIndex(0);
    Hands::click(panelBox("mMirrorPrintChkBx"));
    window->print();
    take(window.get(), QStringLiteral("sending"));
    jobSender.cancel();
    EXPECT_TRUE(waitUntil([this] { return !window->isSending(); }));
    close();

    openAndSettle(QStringLiteral("raw"));
    take(window.get(), QStringLiteral("raw"));
    close();
    // On a busy machine the job may have been sent before it was canceled.
    cupsd->run(QStringLiteral("cancel"), {QStringLiteral("-a"), QStringLiteral("full")});
    cupsd->resume(QStringLiteral("full"));

    dialog::PasswordDialog question(
        host::PasswordRequest(QStringLiteral("Password for ann on localhost?"), QStringLiteral("ann")),
        nullptr);
    question.setAttribute(Qt::WA_DeleteOnClose, false);
    question.show();
    take(&question, QStringLiteral("password"));

    cupsd->setMediaEmpty(true);
    const QByteArray request =
        cupsd->run(QStringLiteral("lp"), {QStringLiteral("-d"), QStringLiteral("full"), documentPath});
    const int jobId = request.mid(request.indexOf("full-") + 5).split(' ').first().toInt();
    dialog::JobWindow job(sharedServer(), QStringLiteral("full"), jobId, QStringLiteral("labels.pdf"));
    job.show();
    EXPECT_TRUE(waitUntil([&] { return job.status() && !job.status()->printerReasons.isEmpty(); }))
        << (job.status() ? job.status()->sentences().join(u'\n').toStdString() : "no answer");
    take(&job, QStringLiteral("job"));
    cupsd->setMediaEmpty(false);
    EXPECT_TRUE(waitUntil([&] { return !job.isVisible(); }));
}

INSTANTIATE_TEST_SUITE_P(Looks, PicturesTest, testing::Values("light", "dark", "right-to-left"));
