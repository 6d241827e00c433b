#ifndef LIBCONTROL_TESTS_WIDGETS_MODALHELPER_H
#define LIBCONTROL_TESTS_WIDGETS_MODALHELPER_H

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>

// Runs `action` on the next modal widget to appear, so that a test can drive
// a dialog that it runs with exec(). The action must close the dialog; if it
// does not, the test's time-out fails it instead of hanging CI.
inline void whenModal(std::function<void(QWidget *)> action)
{
    auto timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, action]() {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        timer->stop();
        timer->deleteLater();
        action(modal);
    });
    timer->start();
}

#endif
