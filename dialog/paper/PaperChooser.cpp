// SPDX-License-Identifier: Apache-2.0
#include "PaperChooser.h"

#include "CustomPaperFields.h"
#include "DocumentPaper.h"
#include "PaperList.h"

#include <dialog/options/ConflictNote.h>
#include <dialog/widgets/ClearButton.h>
#include <dialog/widgets/LengthUnit.h>
#include <dialog/widgets/LinkButton.h>
#include <dialog/widgets/PlainToolTip.h>
#include <host/printer/PpdNumber.h>

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
inline namespace paper {

namespace {

bool isWithin(const QSizeF &size, const host::PpdCustomLimits &limits)
{
    return size.width() >= limits.smallest.width() && size.width() <= limits.largest.width() &&
           size.height() >= limits.smallest.height() && size.height() <= limits.largest.height();
}

bool isCustom(const host::PpdPaper &paper)
{
    return paper.name.startsWith("Custom.");
}

} // namespace

PaperChooser::PaperChooser(const host::PpdFile &ppd, const host::PpdPaper &chosen, QWidget *parent)
    : QWidget(parent)
    , m_ppd(&ppd)
    , m_search(new QLineEdit(this))
    , m_list(new PaperList(this))
    , m_note(new ConflictNote(this))
    , m_documentButton(new LinkButton(this))
{
    build();
    setPpd(ppd, chosen);
}

void PaperChooser::build()
{
    auto *const label = new QLabel(tr("P&aper"), this);
    label->setBuddy(m_list);
    m_list->setAccessibleName(tr("Paper"));
    m_search->setPlaceholderText(tr("Search papers"));
    m_search->setAccessibleName(tr("Search papers"));
    addClearButton(m_search);
    m_documentButton->hide();

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_note);
    layout->addWidget(m_documentButton, 0, Qt::AlignLeading);
    connect(m_search, &QLineEdit::textChanged, m_list, &PaperList::filter);
    m_search->installEventFilter(this);
    connect(m_list, &PaperList::entryChosen, this, &PaperChooser::chooseEntry);
    connect(m_documentButton, &QPushButton::clicked, this, &PaperChooser::chooseDocumentSize);
}

bool PaperChooser::eventFilter(QObject *watched, QEvent *event)
{
    const auto isKey = [&](int key) {
        return event->type() == QEvent::KeyPress && static_cast<const QKeyEvent *>(event)->key() == key;
    };
    if (watched != m_search || (!isKey(Qt::Key_Return) && !isKey(Qt::Key_Enter)))
        return QWidget::eventFilter(watched, event);
    // Return in the search field chooses the first paper found; otherwise it would trigger the window's
    // default button, which prints.
    m_list->chooseFirst();
    return true;
}

void PaperChooser::setPpd(const host::PpdFile &ppd, const host::PpdPaper &chosen)
{
    m_ppd = &ppd;
    m_papers = ppd.papers();
    // A short list needs no search.
    constexpr std::size_t searchable = 8;
    m_search->setVisible(m_papers.size() > searchable);
    buildCustom();
    const bool isListed = std::ranges::find(m_papers, chosen.name, &host::PpdPaper::name) != m_papers.end();
    if (!isListed && !(m_fields && isCustom(chosen)))
        m_papers.insert(m_papers.begin(), chosen);
    m_list->setPapers(m_papers, m_fields != nullptr);
    m_list->filter(m_search->isHidden() ? QString() : m_search->text());
    showPaper(chosen);
}

void PaperChooser::buildCustom()
{
    const std::optional<host::PpdCustomLimits> limits = m_ppd->customLimits();
    // If the limits are the same, keep the fields: the user may be typing while the PPD is replaced.
    if (m_fields && limits == m_limits)
        return;
    delete m_fields;
    m_fields = nullptr;
    m_limits = limits;
    // Some PPDs state limits, but do not allow custom sizes.
    if (!m_limits || !customPaper(host::customPaperName(m_limits->smallest)))
        return;
    m_fields = new CustomPaperFields(*m_limits, this);
    m_fields->hide();
    auto *const column = qobject_cast<QVBoxLayout *>(layout());
    column->insertWidget(column->indexOf(m_documentButton), m_fields);
    setTabOrder(m_fields->lastField(), m_documentButton);
    connect(m_fields, &CustomPaperFields::edited, this, &PaperChooser::chooseCustomSize);
}

void PaperChooser::setDocumentPage(const QSizeF &points)
{
    m_documentPage = points;
    updateDocumentButton();
}

void PaperChooser::setConflicts(const std::vector<host::Conflict> &conflicts)
{
    const QStringList sentences =
        host::sentencesAbout({QStringLiteral("PageSize"), QStringLiteral("PageRegion")}, conflicts);
    m_note->setSentences(sentences);
    m_list->setAccessibleDescription(sentences.join(u' '));
}

bool PaperChooser::choose(const QByteArray &name)
{
    const auto listed = std::ranges::find(m_papers, name, &host::PpdPaper::name);
    std::optional<host::PpdPaper> paper;
    if (listed != m_papers.end())
        paper = *listed;
    else if (m_fields)
        paper = customPaper(name);
    if (paper)
        showPaper(*paper);
    return paper.has_value();
}

void PaperChooser::showPaper(const host::PpdPaper &paper)
{
    m_chosen = paper;
    const auto listed = std::ranges::find(m_papers, paper.name, &host::PpdPaper::name);
    const bool isFree = listed == m_papers.end();
    m_list->showEntry(isFree ? PaperList::customEntry : static_cast<int>(listed - m_papers.begin()));
    if (m_fields) {
        m_fields->setVisible(isFree);
        if (isFree)
            m_fields->showSize(paper.size);
    }
    if (isFree)
        m_chosen.text = tr("Custom, %1", "a size").arg(exactSize(paper.size));
    updateDocumentButton();
}

void PaperChooser::chooseEntry(int entry)
{
    if (entry == PaperList::customEntry) {
        // Start with the size of the previous paper.
        m_fields->showSize(m_chosen.size);
        m_fields->show();
        chooseCustomSize();
        return;
    }
    showPaper(m_papers[static_cast<std::size_t>(entry)]);
    Q_EMIT paperChosen();
}

void PaperChooser::chooseCustomSize()
{
    const auto paper = customPaper(host::customPaperName(m_fields->size()));
    if (!paper || paper->name == m_chosen.name)
        return;
    showPaper(*paper);
    Q_EMIT paperChosen();
}

void PaperChooser::chooseDocumentSize()
{
    const auto paper = paperForDocument();
    if (!paper)
        return;
    // Move the focus to the list, which shows the result: the button is about to be hidden.
    m_list->setFocus();
    showPaper(*paper);
    Q_EMIT paperChosen();
}

std::optional<host::PpdPaper> PaperChooser::customPaper(const QByteArray &name) const
{
    return name.startsWith("Custom.") ? m_ppd->paper(name) : std::nullopt;
}

std::optional<host::PpdPaper> PaperChooser::paperForDocument() const
{
    return paperForPage(m_papers, m_documentPage, [this](const QSizeF &size) {
        const bool isFree = m_fields && isWithin(size, *m_limits);
        return isFree ? customPaper(host::customPaperName(size)) : std::nullopt;
    });
}

void PaperChooser::updateDocumentButton()
{
    auto paper = paperForDocument();
    // If several papers have the size, do not offer the first one when another one is chosen.
    if (paper && (fitsExactly(m_chosen, m_documentPage) || fitsExactly(m_chosen, paper->size)))
        paper.reset();
    m_documentButton->setVisible(paper.has_value());
    if (!paper)
        return;
    m_documentButton->setText(tr("Use the document's size: %1").arg(exactSize(m_documentPage)));
    m_documentButton->setToolTip(isCustom(*paper) ? tr("A custom size") : plainToolTip(paper->text));
}

} // namespace paper
} // namespace dialog
