#include <LibControl/widgets/myevent.h>
#include <LibControl/widgets/stringlineedit.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

const QString s_lineEdit_stylesheet
    = QStringLiteral("QLineEdit{ border-width: 1px; border-style: solid; border-color: white white black white; } "
                     "QLineEdit:hover { border: 1px solid #808080; background-color:%1; border-radius: 2px; } "
                     "QLineEdit:disabled {background:#C0C0C0;color:black;} QLineEdit:read-only {color:#324aa8;}");

const QString s_editableHover = QStringLiteral("#DEAC37");
const QString s_forwardHover = QStringLiteral("#3EAC37");

bool isZeroText(const QString &text)
{
    return text == QLatin1String("0") || text == QLatin1String("0.00");
}

} // namespace

StringLineEdit::StringLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setStyleSheet(s_lineEdit_stylesheet.arg(s_editableHover));
    // Left and right together is what the pages have always been laid out with.
    setAlignment(Qt::AlignLeft | Qt::AlignRight | Qt::AlignVCenter);
}

StringLineEdit::~StringLineEdit() = default;

void StringLineEdit::setMaxLen(int maxLen)
{
    m_maxLen = maxLen;
}

void StringLineEdit::setAttID(int id)
{
    attID = id;
    setReadOnly(true);
    setToolTip(tr("press key or click to launch worksheet"));
}

void StringLineEdit::setForwardFormType(int type)
{
    setForward(ForwardFormType, type);
}

void StringLineEdit::setWorksheetType(int type)
{
    setForward(ForwardWorksheetType, type);
}

void StringLineEdit::setForward(int mode, int type)
{
    m_forwardMode = mode;
    m_forwardType = type;
    setStyleSheet(s_lineEdit_stylesheet.arg(s_forwardHover));
}

void StringLineEdit::postLaunchWS()
{
    if (attID < 1 || !parent())
        return;
    QCoreApplication::postEvent(parent(), new EventNeedWorksheet(attID));
}

bool StringLineEdit::event(QEvent *e)
{
    // Skips QLineEdit::event on purpose; the pages rely on this dispatch.
    return QWidget::event(e);
}

void StringLineEdit::mousePressEvent(QMouseEvent *e)
{
    if (e->button() == Qt::RightButton) {
        if (!text().isEmpty() && !isZeroText(text()))
            selectAll();
    } else if (e->button() == Qt::LeftButton && attID > 0) {
        postLaunchWS();
        return;
    }
    QLineEdit::mousePressEvent(e);
}

void StringLineEdit::keyPressEvent(QKeyEvent *e)
{
    if (attID >= 1 && e->key() != Qt::Key_Tab) {
        postLaunchWS();
        return;
    }
    QLineEdit::keyPressEvent(e);
}

void StringLineEdit::focusInEvent(QFocusEvent *e)
{
    QLineEdit::focusInEvent(e);
    Q_EMIT focussed(true, this);
}

void StringLineEdit::focusOutEvent(QFocusEvent *e)
{
    QLineEdit::focusOutEvent(e);
    Q_EMIT focussed(false, this);
}
