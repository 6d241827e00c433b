#ifndef LIBCONTROL_WIDGETS_WSMULTIDEPDLG_H
#define LIBCONTROL_WIDGETS_WSMULTIDEPDLG_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/basedialog.h>

#include <QPointer>

#include <list>

class BaseTaxPage;
class PpgWizardPage;
class QTabWidget;

/**
 * The worksheet pages of several dependants as the tabs of one dialog with
 * a single OK button. The dialog takes the pages over: they become its
 * children and go with it. Accepting writes every page back first.
 */
class LIBCONTROL_EXPORT WSMultiDepDlg : public BaseDialog
{
    Q_OBJECT
public:
    /** Keeps the pages (null entries allowed) and builds the tab widget and button box. */
    WSMultiDepDlg(const QString &title, std::list<PpgWizardPage *> &pages, BaseTaxPage *owner);
    ~WSMultiDepDlg() override;

    /**
     * Empties the tabs, resizes the dialog, then adds one tab per non-null
     * page in list order, titled with the page's title or "Dependant <n>"
     * (n counts null entries too) and bound and loaded as a wizard would.
     */
    void initUI(int width, int height);
    /** The tab widget holding the pages. */
    QTabWidget *tabWidget() const { return m_tabs; }

public Q_SLOTS:
    /** initUI() at the standard size unless it already ran, then the modal run. */
    int exec() override;
    /** Writes every page back, then closes with Accepted. */
    void accept() override;

private:
    std::list<QPointer<PpgWizardPage>> m_pages;
    QTabWidget *m_tabs;
    bool m_initialised = false;
};

#endif
