#include "gallery.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

namespace Tool {

namespace {

constexpr int TitleBarHeight = 28;

QPixmap withTitleBar(QPixmap const &client, QString const &title)
{
    QPixmap framed(client.width(), client.height() + TitleBarHeight);
    framed.fill(QColor(QStringLiteral("#3c4650")));
    QPainter painter(&framed);
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(10, 0, client.width() - 20, TitleBarHeight), Qt::AlignLeft | Qt::AlignVCenter, title);
    painter.drawPixmap(0, TitleBarHeight, client);
    return framed;
}

} // namespace

Gallery::Gallery(QString const &dir)
    : m_dir(dir)
{ }

void Gallery::section(QString const &title)
{
    m_section = title;
}

bool Gallery::shoot(QWidget *widget, QString const &file, QString const &caption, QWidget *focus)
{
    widget->show();
    QApplication::processEvents();
    if (focus)
        focus->setFocus();
    else if (QWidget *focused = QApplication::focusWidget())
        focused->clearFocus();
    QApplication::processEvents();
    QPixmap picture = widget->grab();
    if (widget->isWindow() && !widget->windowTitle().isEmpty())
        picture = withTitleBar(picture, widget->windowTitle());
    QString const path = QDir(m_dir).filePath(file + QStringLiteral(".png"));
    if (picture.isNull() || !picture.save(path, "PNG")) {
        ++m_failures;
        m_lines << QStringLiteral("%1  NOT WRITTEN  %2").arg(path, caption);
        return false;
    }
    m_shots.push_back({ m_section, file + QStringLiteral(".png"), caption, picture.size() });
    m_lines << QStringLiteral("%1  %2x%3  %4").arg(path).arg(picture.width()).arg(picture.height()).arg(caption);
    return true;
}

QString Gallery::indexPath() const
{
    return QDir(m_dir).filePath(QStringLiteral("index.html"));
}

bool Gallery::writeIndex() const
{
    QString html = QStringLiteral(
        "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>LibControl widget gallery</title>\n"
        "<style>body{font-family:sans-serif;margin:2em} figure{display:inline-block;vertical-align:top;"
        "margin:0 2em 2em 0} figcaption{font-size:90%;color:#333}</style></head>\n"
        "<body><h1>LibControl widget gallery</h1>\n");
    QString current;
    for (Shot const &shot : m_shots) {
        if (shot.section != current) {
            current = shot.section;
            html += QStringLiteral("<h2>%1</h2>\n").arg(current.toHtmlEscaped());
        }
        html += QStringLiteral("<figure><img src=\"%1\" width=\"%2\" height=\"%3\" alt=\"%4\">"
                               "<figcaption>%4</figcaption></figure>\n")
                    .arg(shot.file.toHtmlEscaped())
                    .arg(shot.size.width())
                    .arg(shot.size.height())
                    .arg(shot.caption.toHtmlEscaped());
    }
    html += QStringLiteral("</body></html>\n");
    QSaveFile index(indexPath());
    return index.open(QIODevice::WriteOnly) && index.write(html.toUtf8()) >= 0 && index.commit();
}

} // namespace Tool
