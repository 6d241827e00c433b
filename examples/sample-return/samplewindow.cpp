#include "samplewindow.h"

#include "samplepage.h"
#include "samplereturn.h"

#include <LibControl/forms/taxformtype.h>
#include <LibControl/widgets/myevent.h>
#include <LibControl/widgets/scrolltaxform.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>

namespace {

QString const PageBackground = QStringLiteral("#f5f5f0");
QString const FileFilter = QStringLiteral("Return files (*.r25);;All files (*)");

} // namespace

SampleWindow::SampleWindow(std::unique_ptr<SampleReturn> ret, QWidget *parent)
    : QMainWindow(parent)
    , m_return(std::move(ret))
    , m_stack(new QStackedWidget(this))
{
    setCentralWidget(m_stack);
    createActions();
    buildPages();
    updateTitle();
    statusBar()->showMessage(tr("Click a line that comes from a worksheet or a schedule to open it."));
}

SampleWindow::~SampleWindow()
{
    // The pages point into the return: they go first.
    m_pages.clear();
    delete m_stack;
}

void SampleWindow::createActions()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    QToolBar *tools = addToolBar(tr("File"));
    tools->setMovable(false);
    QAction *open = file->addAction(tr("&Open..."), this, &SampleWindow::chooseAndOpen, QKeySequence::Open);
    QAction *save = file->addAction(tr("&Save"), this, &SampleWindow::save, QKeySequence::Save);
    file->addAction(tr("Save &As..."), this, &SampleWindow::chooseAndSave, QKeySequence::SaveAs);
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
    tools->addAction(open);
    tools->addAction(save);
    tools->addSeparator();

    QMenu *forms = menuBar()->addMenu(tr("F&orms"));
    for (auto const &form : { std::make_pair(int(FORM_T1GENERAL), tr("T1 General")),
             std::make_pair(int(FORM_WS_SCHEDULE4), tr("Schedule 4")) }) {
        int const id = form.first;
        QAction *action = forms->addAction(form.second, this, [this, id]() { showForm(id); });
        tools->addAction(action);
    }
}

void SampleWindow::buildPages()
{
    while (QWidget *old = m_stack->widget(0)) {
        m_stack->removeWidget(old);
        delete old;
    }
    m_pages.clear();
    addPage(FORM_T1GENERAL, new SampleT1Page(&m_return->t1, this));
    addPage(FORM_WS_SCHEDULE4, new SampleSchedulePage(&m_return->t1, this));
    refresh();
}

void SampleWindow::addPage(int formId, BaseTaxPage *page)
{
    // The page keeps the window as the parent it posts forwarded lines to,
    // while the scroll area becomes its parent in the widget tree.
    m_stack->addWidget(new ScrollTaxForm(PageBackground, m_stack, page));
    m_pages[formId] = page;
    connect(page, &BaseTaxPage::signalCalc, this, &SampleWindow::refresh);
}

void SampleWindow::refresh()
{
    for (auto const &entry : m_pages)
        entry.second->syncData();
}

bool SampleWindow::showForm(int formId)
{
    BaseTaxPage *shown = page(formId);
    if (!shown)
        return false;
    for (int i = 0; i < m_stack->count(); ++i) {
        auto *area = static_cast<ScrollTaxForm *>(m_stack->widget(i));
        if (area->getCtntWgt() == shown)
            m_stack->setCurrentIndex(i);
    }
    shown->syncData();
    return true;
}

int SampleWindow::currentForm() const
{
    auto *area = static_cast<ScrollTaxForm *>(m_stack->currentWidget());
    for (auto const &entry : m_pages) {
        if (area && area->getCtntWgt() == entry.second)
            return entry.first;
    }
    return 0;
}

BaseTaxPage *SampleWindow::page(int formId) const
{
    auto const found = m_pages.find(formId);
    return found == m_pages.end() ? nullptr : found->second;
}

bool SampleWindow::event(QEvent *e)
{
    if (e->type() == QEvent::Type(EventForwardEdit::Type)) {
        int const formId = static_cast<MyEvent *>(e)->data();
        if (!showForm(formId))
            statusBar()->showMessage(tr("This return has no page for form %1.").arg(formId));
        return true;
    }
    return QMainWindow::event(e);
}

bool SampleWindow::openFile(QString const &path, QString *error)
{
    auto loaded = std::make_unique<SampleReturn>();
    if (!loaded->load(path, error))
        return false;
    // Date-times are never archived; recalculating restores them.
    loaded->t1.Calculate();
    int const shown = currentForm();
    // The old return lives until the pages that point into it are gone.
    m_return.swap(loaded);
    m_path = path;
    buildPages();
    showForm(shown);
    updateTitle();
    return true;
}

bool SampleWindow::saveFile(QString const &path, QString *error)
{
    if (!m_return->save(path, error))
        return false;
    m_path = path;
    updateTitle();
    return true;
}

void SampleWindow::chooseAndOpen()
{
    QString const path = QFileDialog::getOpenFileName(this, tr("Open return"), m_path, FileFilter);
    QString error;
    if (!path.isEmpty() && !openFile(path, &error))
        QMessageBox::warning(this, tr("Open return"), tr("Cannot open %1: %2").arg(path, error));
}

void SampleWindow::save()
{
    if (m_path.isEmpty()) {
        chooseAndSave();
        return;
    }
    QString error;
    if (!saveFile(m_path, &error))
        QMessageBox::warning(this, tr("Save return"), tr("Cannot save %1: %2").arg(m_path, error));
}

void SampleWindow::chooseAndSave()
{
    QString const path = QFileDialog::getSaveFileName(this, tr("Save return"), m_path, FileFilter);
    QString error;
    if (!path.isEmpty() && !saveFile(path, &error))
        QMessageBox::warning(this, tr("Save return"), tr("Cannot save %1: %2").arg(path, error));
}

void SampleWindow::updateTitle()
{
    QString const name = m_path.isEmpty() ? tr("untitled") : QFileInfo(m_path).fileName();
    setWindowTitle(tr("Sample return 2025 - %1").arg(name));
}
