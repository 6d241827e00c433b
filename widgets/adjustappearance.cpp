#include <LibControl/widgets/adjustappearance.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QQueue>

namespace {

// The about box's labels keep the look they were designed with: their
// names are "about", a capitalised subject and "Label", case-sensitively.
bool isAboutBoxLabel(const QString &name)
{
    const QLatin1String prefix("about");
    const QLatin1String suffix("Label");
    if (!name.startsWith(prefix) || !name.endsWith(suffix))
        return false;
    const int subjectLength = name.size() - prefix.size() - suffix.size();
    return subjectLength > 0 && name.at(prefix.size()).isUpper();
}

void adjustLeaf(QWidget *leaf)
{
    if (auto button = qobject_cast<QPushButton *>(leaf)) {
        button->setMinimumHeight(32);
        button->setMaximumHeight(32);
        // The former horizontal policy becomes the vertical one on purpose.
        button->setSizePolicy(QSizePolicy(QSizePolicy::Fixed, button->sizePolicy().horizontalPolicy()));
    } else if (qobject_cast<QLabel *>(leaf) || qobject_cast<QListWidget *>(leaf)) {
        QFont font = leaf->font();
        font.setPointSize(14);
        leaf->setFont(font);
    }
}

} // namespace

void genAdjustWidgetAppearanceToOS(QWidget *root)
{
    if (!root)
        return;
    QQueue<QWidget *> queue;
    queue.enqueue(root);
    while (!queue.isEmpty()) {
        const QWidget *parent = queue.dequeue();
        const QObjectList children = parent->children();
        for (QObject *child : children) {
            auto widget = qobject_cast<QWidget *>(child);
            if (!widget || isAboutBoxLabel(widget->objectName()))
                continue;
            if (!widget->children().isEmpty())
                queue.enqueue(widget);
            else
                adjustLeaf(widget);
        }
    }
}
