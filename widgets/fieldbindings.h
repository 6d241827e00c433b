#ifndef LIBCONTROL_WIDGETS_FIELDBINDINGS_H
#define LIBCONTROL_WIDGETS_FIELDBINDINGS_H

#include <LibControl/libcontrol_export.h>

#include <QObject>
#include <QDate>
#include <QDateTime>
#include <QString>

#include <map>

class CBoolField;
class CDateField;
class CDateTimeField;
class CFloatField;
class CIntField;
class CStringField;
class DoubleLineEdit;
class QButtonGroup;
class QCheckBox;
class QPlainTextEdit;
class StringLineEdit;
class StyledComboBox;
class StyledDateEdit;
class StyledDateTimeEdit;

/**
 * The widget-to-field maps of a page: for every widget kind, a map from the
 * widget's object name to the widget and a map from the widget to its field
 * (float, date and line edits have a second widget map of the same shape,
 * loaded and stored after the first).
 *
 * Neither widgets nor fields are owned. A bound widget that is destroyed
 * drops out of every map, so a page never touches a deleted widget; a null
 * field in a map is passed over.
 */
class LIBCONTROL_EXPORT FieldBindings
{
public:
    /** How combo boxes are read and written: CT1ComboBox rules, or StyledComboBox ones. */
    enum ComboRule { T1ComboRule, StyledComboRule };

    explicit FieldBindings(ComboRule rule);
    ~FieldBindings();
    FieldBindings(const FieldBindings &) = delete;
    FieldBindings &operator=(const FieldBindings &) = delete;

    /**
     * Binds a widget to a field in the first map of its kind. Both must be
     * non-null and the widget must have an object name (the slots find their
     * sender by it); otherwise nothing is bound and false is returned.
     */
    bool bind(DoubleLineEdit *w, CFloatField *f);
    bool bind(QCheckBox *w, CBoolField *f);
    bool bind(QButtonGroup *w, CIntField *f);
    bool bind(StyledComboBox *w, CIntField *f);
    bool bind(StyledDateEdit *w, CDateField *f);
    bool bind(StyledDateTimeEdit *w, CDateTimeField *f);
    bool bind(StringLineEdit *w, CStringField *f);
    bool bind(QPlainTextEdit *w, CStringField *f);

    /** Copies every field into its widget, multi-line edits excepted. */
    void load();
    /** Copies every field into its multi-line edit, leaving no undo step behind. */
    void loadTextEdits();
    /** Copies every widget into its field. */
    void store();

    /**
     * Stores the value of the bound widget named `name` (the sender of a
     * change signal) into its field and returns the field; null when no
     * widget of that kind has the name or it has no field.
     */
    CFloatField *storeFloat(const QString &name);
    CStringField *storeString(const QString &name);
    CStringField *storeMultiLine(const QString &name);
    CBoolField *storeBool(const QString &name, int state);
    CIntField *storeRadio(const QString &name, int id);
    CIntField *storeCombo(const QString &name);
    CDateField *storeDate(const QString &name, const QDate &date);
    CDateTimeField *storeDateTime(const QString &name, const QDateTime &dateTime);

    std::map<QString, DoubleLineEdit *> floatEdits;
    std::map<DoubleLineEdit *, CFloatField *> floatFields;
    std::map<DoubleLineEdit *, CFloatField *> floatFields2;
    std::map<QString, QCheckBox *> checkBoxes;
    std::map<QCheckBox *, CBoolField *> boolFields;
    std::map<QString, QButtonGroup *> buttonGroups;
    std::map<QButtonGroup *, CIntField *> radioFields;
    std::map<QString, StyledComboBox *> comboBoxes;
    std::map<StyledComboBox *, CIntField *> comboFields;
    std::map<QString, StyledDateEdit *> dateEdits;
    std::map<StyledDateEdit *, CDateField *> dateFields;
    std::map<StyledDateEdit *, CDateField *> dateFields2;
    std::map<QString, StyledDateTimeEdit *> dateTimeEdits;
    std::map<StyledDateTimeEdit *, CDateTimeField *> dateTimeFields;
    std::map<QString, StringLineEdit *> lineEdits;
    std::map<StringLineEdit *, CStringField *> stringFields;
    std::map<StringLineEdit *, CStringField *> stringFields2;
    std::map<QString, QPlainTextEdit *> textEdits;
    std::map<QPlainTextEdit *, CStringField *> textFields;

private:
    int comboValue(StyledComboBox *w) const;
    void forget(QObject *widget);
    template<typename W, typename F>
    bool bindTo(W *w, F *f, std::map<QString, W *> &names, std::map<W *, F *> &fields);

    ComboRule m_comboRule;
    QObject m_guard; // owns the connections that drop destroyed widgets
};

#endif
