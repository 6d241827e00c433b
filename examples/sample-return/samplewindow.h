#ifndef SAMPLE_RETURN_SAMPLEWINDOW_H
#define SAMPLE_RETURN_SAMPLEWINDOW_H

#include <QMainWindow>

#include <map>
#include <memory>

class BaseTaxPage;
class QStackedWidget;
class SampleReturn;

/**
 * The sample return as a desktop application: one page per form in a
 * stack of scroll areas, a File menu and tool bar to open and save the
 * return file, and a Forms menu to move between the pages. A line carried
 * from another form opens that form's page when clicked.
 */
class SampleWindow : public QMainWindow
{
    Q_OBJECT
public:
    /** Shows `ret`, already calculated; the window takes it over. */
    explicit SampleWindow(std::unique_ptr<SampleReturn> ret, QWidget *parent = nullptr);
    ~SampleWindow() override;

    /** The return shown. */
    SampleReturn &sampleReturn() const { return *m_return; }

    /** Brings up the page of form `formId`; false when the window has none. */
    bool showForm(int formId);
    /** The form identifier of the page on top. */
    int currentForm() const;
    /** The page of form `formId`, or null. */
    BaseTaxPage *page(int formId) const;

    /** Reads a return file and shows it; on failure the shown return stays. */
    bool openFile(QString const &path, QString *error = nullptr);
    /** Writes the shown return to `path`. */
    bool saveFile(QString const &path, QString *error = nullptr);

    /** Opens the form that a forwarded line names; other events go to QMainWindow. */
    bool event(QEvent *e) override;

public Q_SLOTS:
    /** Reloads every page from the return. */
    void refresh();

private Q_SLOTS:
    void chooseAndOpen();
    void save();
    void chooseAndSave();

private:
    void createActions();
    void buildPages();
    void addPage(int formId, BaseTaxPage *page);
    void updateTitle();

    std::unique_ptr<SampleReturn> m_return;
    QStackedWidget *m_stack;
    std::map<int, BaseTaxPage *> m_pages;
    QString m_path;
};

#endif
