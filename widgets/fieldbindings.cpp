#include <LibControl/widgets/fieldbindings.h>

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/fields/boolfield.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/fields/stringfield.h>
#include <LibControl/widgets/ct1combobox.h>
#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/stringlineedit.h>
#include <LibControl/widgets/styleddateedit.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QPlainTextEdit>

namespace {

// The field of `w`, looked up in the first widget map and then the second.
template<typename W, typename F>
F *fieldOf(W *w, const std::map<W *, F *> &first, const std::map<W *, F *> *second = nullptr)
{
    auto it = first.find(w);
    if (it != first.end())
        return it->second;
    if (second) {
        auto it2 = second->find(w);
        if (it2 != second->end())
            return it2->second;
    }
    return nullptr;
}

template<typename W>
W *widgetNamed(const QString &name, const std::map<QString, W *> &names)
{
    auto it = names.find(name);
    return it == names.end() ? nullptr : it->second;
}

template<typename W, typename F>
void eraseWidget(QObject *widget, std::map<QString, W *> &names, std::map<W *, F *> &fields,
                 std::map<W *, F *> *fields2 = nullptr)
{
    for (auto it = names.begin(); it != names.end();) {
        if (static_cast<QObject *>(it->second) == widget)
            it = names.erase(it);
        else
            ++it;
    }
    auto dropFrom = [widget](std::map<W *, F *> &map) {
        for (auto it = map.begin(); it != map.end();) {
            if (static_cast<QObject *>(it->first) == widget)
                it = map.erase(it);
            else
                ++it;
        }
    };
    dropFrom(fields);
    if (fields2)
        dropFrom(*fields2);
}

void checkGroupButton(QButtonGroup *group, int id)
{
    if (QAbstractButton *button = group->button(id)) {
        button->setChecked(true);
        return;
    }
    // An exclusive group refuses to uncheck its last checked button.
    if (QAbstractButton *checked = group->checkedButton()) {
        group->setExclusive(false);
        checked->setChecked(false);
        group->setExclusive(true);
    }
}

} // namespace

FieldBindings::FieldBindings(ComboRule rule)
    : m_comboRule(rule)
{
}

FieldBindings::~FieldBindings() = default;

template<typename W, typename F>
bool FieldBindings::bindTo(W *w, F *f, std::map<QString, W *> &names, std::map<W *, F *> &fields)
{
    if (!w || !f || w->objectName().isEmpty())
        return false;
    const bool known = fields.count(w) != 0;
    names[w->objectName()] = w;
    fields[w] = f;
    if (!known)
        QObject::connect(w, &QObject::destroyed, &m_guard, [this](QObject *gone) { forget(gone); });
    return true;
}

bool FieldBindings::bind(DoubleLineEdit *w, CFloatField *f) { return bindTo(w, f, floatEdits, floatFields); }
bool FieldBindings::bind(QCheckBox *w, CBoolField *f) { return bindTo(w, f, checkBoxes, boolFields); }
bool FieldBindings::bind(QButtonGroup *w, CIntField *f) { return bindTo(w, f, buttonGroups, radioFields); }
bool FieldBindings::bind(StyledComboBox *w, CIntField *f) { return bindTo(w, f, comboBoxes, comboFields); }
bool FieldBindings::bind(StyledDateEdit *w, CDateField *f) { return bindTo(w, f, dateEdits, dateFields); }
bool FieldBindings::bind(StyledDateTimeEdit *w, CDateTimeField *f)
{
    return bindTo(w, f, dateTimeEdits, dateTimeFields);
}
bool FieldBindings::bind(StringLineEdit *w, CStringField *f) { return bindTo(w, f, lineEdits, stringFields); }
bool FieldBindings::bind(QPlainTextEdit *w, CStringField *f) { return bindTo(w, f, textEdits, textFields); }

void FieldBindings::forget(QObject *widget)
{
    eraseWidget(widget, floatEdits, floatFields, &floatFields2);
    eraseWidget(widget, checkBoxes, boolFields);
    eraseWidget(widget, buttonGroups, radioFields);
    eraseWidget(widget, comboBoxes, comboFields);
    eraseWidget(widget, dateEdits, dateFields, &dateFields2);
    eraseWidget(widget, dateTimeEdits, dateTimeFields);
    eraseWidget(widget, lineEdits, stringFields, &stringFields2);
    eraseWidget(widget, textEdits, textFields);
}

void FieldBindings::load()
{
    for (const auto *map : {&floatFields, &floatFields2})
        for (const auto &[w, f] : *map)
            if (f)
                w->setDouble(f->m_dValue);
    for (const auto &[w, f] : boolFields)
        if (f)
            w->setCheckState(f->m_nValue ? Qt::Checked : Qt::Unchecked);
    for (const auto &[w, f] : radioFields)
        if (f)
            checkGroupButton(w, f->m_nValue);
    for (const auto &[w, f] : comboFields) {
        if (!f)
            continue;
        auto *t1 = qobject_cast<CT1ComboBox *>(w);
        if (m_comboRule == T1ComboRule && t1)
            t1->SetCurSelData(f->m_nValue);
        else
            w->SetCurSelData(f->m_nValue);
    }
    for (const auto *map : {&dateFields, &dateFields2})
        for (const auto &[w, f] : *map)
            if (f)
                w->setDate(f->m_date);
    for (const auto &[w, f] : dateTimeFields)
        if (f)
            w->setDatetime(f->m_dateTime);
    for (const auto *map : {&stringFields, &stringFields2})
        for (const auto &[w, f] : *map)
            if (f)
                w->setText(f->m_strValue);
}

void FieldBindings::loadTextEdits()
{
    for (const auto &[w, f] : textFields) {
        if (!f)
            continue;
        // A page reload must not leave an undo step behind, and one repaint is enough.
        QTextDocument *doc = w->document();
        doc->setUndoRedoEnabled(false);
        w->setUpdatesEnabled(false);
        w->setPlainText(f->m_strValue);
        w->setUpdatesEnabled(true);
        doc->setUndoRedoEnabled(true);
    }
}

void FieldBindings::store()
{
    for (const auto *map : {&stringFields, &stringFields2})
        for (const auto &[w, f] : *map)
            if (f)
                f->m_strValue = w->text();
    for (const auto &[w, f] : textFields)
        if (f)
            f->m_strValue = w->toPlainText();
    for (const auto *map : {&floatFields, &floatFields2})
        for (const auto &[w, f] : *map)
            if (f)
                *f = w->getDouble();
    for (const auto &[w, f] : boolFields)
        if (f)
            f->m_nValue = w->checkState() == Qt::Checked;
    for (const auto &[w, f] : radioFields)
        if (f)
            f->m_nValue = w->checkedId();
    for (const auto &[w, f] : comboFields)
        if (f)
            f->m_nValue = comboValue(w);
    for (const auto *map : {&dateFields, &dateFields2})
        for (const auto &[w, f] : *map)
            if (f)
                *f = w->nullDate();
    for (const auto &[w, f] : dateTimeFields)
        if (f)
            f->m_dateTime = w->dateTime();
}

int FieldBindings::comboValue(StyledComboBox *w) const
{
    auto *t1 = qobject_cast<CT1ComboBox *>(w);
    if (m_comboRule == T1ComboRule && t1)
        return t1->GetCurSelData();
    return w->GetCurSelData();
}

CFloatField *FieldBindings::storeFloat(const QString &name)
{
    DoubleLineEdit *w = widgetNamed(name, floatEdits);
    CFloatField *f = w ? fieldOf(w, floatFields, &floatFields2) : nullptr;
    if (f)
        *f = w->getDouble();
    return f;
}

CStringField *FieldBindings::storeString(const QString &name)
{
    StringLineEdit *w = widgetNamed(name, lineEdits);
    CStringField *f = w ? fieldOf(w, stringFields, &stringFields2) : nullptr;
    if (f)
        f->m_strValue = w->text();
    return f;
}

CStringField *FieldBindings::storeMultiLine(const QString &name)
{
    QPlainTextEdit *w = widgetNamed(name, textEdits);
    CStringField *f = w ? fieldOf(w, textFields) : nullptr;
    if (f)
        f->m_strValue = w->toPlainText();
    return f;
}

CBoolField *FieldBindings::storeBool(const QString &name, int state)
{
    QCheckBox *w = widgetNamed(name, checkBoxes);
    CBoolField *f = w ? fieldOf(w, boolFields) : nullptr;
    if (f)
        f->m_nValue = state == Qt::Checked;
    return f;
}

CIntField *FieldBindings::storeRadio(const QString &name, int id)
{
    QButtonGroup *w = widgetNamed(name, buttonGroups);
    CIntField *f = w ? fieldOf(w, radioFields) : nullptr;
    if (f)
        f->m_nValue = id;
    return f;
}

CIntField *FieldBindings::storeCombo(const QString &name)
{
    StyledComboBox *w = widgetNamed(name, comboBoxes);
    CIntField *f = w ? fieldOf(w, comboFields) : nullptr;
    if (f)
        f->m_nValue = comboValue(w);
    return f;
}

CDateField *FieldBindings::storeDate(const QString &name, const QDate &date)
{
    StyledDateEdit *w = widgetNamed(name, dateEdits);
    CDateField *f = w ? fieldOf(w, dateFields, &dateFields2) : nullptr;
    if (f)
        *f = date;
    return f;
}

CDateTimeField *FieldBindings::storeDateTime(const QString &name, const QDateTime &dateTime)
{
    StyledDateTimeEdit *w = widgetNamed(name, dateTimeEdits);
    CDateTimeField *f = w ? fieldOf(w, dateTimeFields) : nullptr;
    if (f)
        f->m_dateTime = dateTime;
    return f;
}
