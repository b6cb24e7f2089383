// SPDX-License-Identifier: Apache-2.0
#include "ChoicesColumn.h"

#include <dialog/job/DestinationChooser.h>
#include <dialog/job/PageOptions.h>
#include <dialog/paper/PaperChooser.h>
#include <host/documents/LabelDocument.h>

#include <QLabel>
#include <QVBoxLayout>

namespace dialog {
inline namespace window {

ChoicesColumn::ChoicesColumn(const host::LabelDocument &document, host::SetupKeeper &keeper,
                             const host::JobSettings &settings, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_keeper(keeper)
    , m_paperPlace(new QVBoxLayout)
    , m_pages(new PageOptions(document.pageCounts(), this))
{
    m_pages->setSettings(settings);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(makePrinter());
    layout->addLayout(m_paperPlace, 1);
    layout->addWidget(m_pages);
    // If there are no papers, the other widgets stay together at the top.
    layout->addStretch();
}

QWidget *ChoicesColumn::makePrinter()
{
    if (m_keeper.session())
        return new DestinationChooser(*m_keeper.session(), this);
    auto *const printer = new QLabel(m_keeper.setup()->printerText(), this);
    QFont bold = printer->font();
    bold.setBold(true);
    printer->setFont(bold);
    printer->setWordWrap(true);
    printer->setTextFormat(Qt::PlainText);
    printer->setAccessibleName(tr("Printer: %1").arg(printer->text()));
    return printer;
}

void ChoicesColumn::showPapers()
{
    const host::PrinterSetup *const setup = m_keeper.setup();
    const bool hasPapers = setup && setup->paper();
    if (hasPapers && m_papers) {
        // Keep the widget, so that a search and the focus stay when the PPD is replaced.
        m_papers->setPpd(setup->ppd(), *setup->paper());
    } else if (hasPapers) {
        m_papers = new PaperChooser(setup->ppd(), *setup->paper(), this);
        m_papers->setDocumentPage(m_document.pageSize(0));
        m_paperPlace->addWidget(m_papers);
        connect(m_papers, &PaperChooser::paperChosen, this, &ChoicesColumn::paperChosen);
    }
    if (m_papers)
        m_papers->setVisible(hasPapers);
}

const host::PpdPaper &ChoicesColumn::chosenPaper() const
{
    return m_papers->chosen();
}

void ChoicesColumn::setConflicts(const std::vector<host::Conflict> &conflicts)
{
    if (m_papers)
        m_papers->setConflicts(conflicts);
}

} // namespace window
} // namespace dialog
