#ifndef LIBCONTROL_TESTS_WIDGETS_MODALWATCH_H
#define LIBCONTROL_TESTS_WIDGETS_MODALWATCH_H

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>

#include <functional>

// Watches for modal widgets while it lives: each one is recorded, handed to
// `inspect` (if given) and closed, so a test that triggers exec() cannot
// hang. Unlike whenModal() it stops with the scope, so it never reaches into
// the next test.
class ModalWatch
{
public:
    explicit ModalWatch(std::function<void(QWidget *)> inspect = {})
        : m_inspect(std::move(inspect))
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [this]() { closeModal(); });
        m_timer.start();
    }

    int seen = 0;
    QString title;
    QString text;

private:
    void closeModal()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        ++seen;
        title = modal->windowTitle();
        if (auto *box = qobject_cast<QMessageBox *>(modal))
            text = box->text();
        if (m_inspect)
            m_inspect(modal);
        if (modal->isVisible()) {
            if (auto *dialog = qobject_cast<QDialog *>(modal))
                dialog->reject();
            else
                modal->close();
        }
    }

    QTimer m_timer;
    std::function<void(QWidget *)> m_inspect;
};

#endif
