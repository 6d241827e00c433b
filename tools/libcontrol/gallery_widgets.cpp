// The field widgets of the gallery, one picture per kind and state.

#include "gallery.h"

#include <LibControl/forms/taxformtype.h>
#include <LibControl/widgets/cforwardedit.h>
#include <LibControl/widgets/ct1combobox.h>
#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/styledcheckbox.h>
#include <LibControl/widgets/styleddateedit.h>
#include <LibControl/widgets/underlinelabel.h>

#include <QDateTime>
#include <QHBoxLayout>

#include <functional>
#include <memory>

namespace Tool {

namespace {

// Every widget picture has this size, so the pictures line up.
constexpr int ShotWidth = 240;
constexpr int ShotHeight = 44;

enum class State { Normal, ReadOnly, Forward, ForwardHover, Worksheet, Disabled, Hover, Checked, Empty, Focused };

struct StateInfo
{
    State state;
    char const *file;
    char const *caption;
};

StateInfo const States[] = {
    { State::Normal, "normal", "normal" },
    { State::ReadOnly, "readonly", "read-only" },
    { State::Forward, "forward", "carried from a form (setForwardFormType)" },
    { State::ForwardHover, "forward-hover", "carried from a form, under the mouse" },
    { State::Worksheet, "worksheet", "fed by a worksheet (setAttID)" },
    { State::Disabled, "disabled", "disabled" },
    { State::Hover, "hover", "under the mouse" },
    { State::Checked, "checked", "checked" },
    { State::Empty, "empty", "no date" },
    { State::Focused, "focused", "with the keyboard focus" },
};

struct Kind
{
    char const *file;
    char const *name;
    std::function<QWidget *()> make;
    std::vector<State> states;
};

std::vector<State> const LineEditStates = { State::Normal, State::ReadOnly, State::Forward, State::ForwardHover,
    State::Worksheet, State::Disabled, State::Hover };

template<typename Edit> QWidget *makeAmount(double value)
{
    auto *edit = new Edit;
    edit->setDouble(value);
    return edit;
}

QWidget *makeText()
{
    auto *edit = new StringLineEdit;
    edit->setText(QStringLiteral("Marie Tremblay"));
    return edit;
}

QWidget *makeProvinces()
{
    auto *box = new CT1ComboBox;
    box->LoadProvs();
    box->SetCurSelData(9);
    return box;
}

QWidget *makeRelationships()
{
    auto *box = new CT1ComboBox;
    box->LoadRelationships();
    box->SetCurSelData(1);
    return box;
}

QWidget *makeDate()
{
    auto *edit = new StyledDateEdit;
    edit->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
    edit->setDate(QDate(1984, 3, 9));
    return edit;
}

QWidget *makeDateTime()
{
    auto *edit = new StyledDateTimeEdit;
    edit->setDisplayFormat(QStringLiteral("yyyy/MM/dd hh:mm"));
    edit->setDatetime(QDateTime(QDate(2026, 4, 30), QTime(12, 0)));
    return edit;
}

std::vector<Kind> kinds()
{
    return {
        { "stringlineedit", "StringLineEdit", makeText, LineEditStates },
        { "doublelineedit", "DoubleLineEdit", [] { return makeAmount<DoubleLineEdit>(78450.0); }, LineEditStates },
        { "cforwardedit", "CForwardEdit", [] { return makeAmount<CForwardEdit>(1150.0); },
            { State::Normal, State::ReadOnly, State::Disabled, State::Hover } },
        { "underlinelabel", "UnderlineLabel", [] { return new UnderlineLabel; }, { State::Normal, State::Disabled } },
        { "styledcheckbox", "StyledCheckBox", [] { return new StyledCheckBox; },
            { State::Normal, State::Checked, State::Disabled } },
        { "ct1combobox-provinces", "CT1ComboBox (provinces)", makeProvinces,
            { State::Normal, State::Focused, State::Disabled } },
        { "ct1combobox-relationships", "CT1ComboBox (relationships)", makeRelationships, { State::Normal } },
        { "styleddateedit", "StyledDateEdit", makeDate,
            { State::Normal, State::Empty, State::ReadOnly, State::Focused, State::Disabled } },
        { "styleddatetimeedit", "StyledDateTimeEdit", makeDateTime, { State::Normal, State::Disabled } },
    };
}

void applyState(QWidget *widget, State state)
{
    auto *edit = qobject_cast<StringLineEdit *>(widget);
    switch (state) {
    case State::Normal:
        break;
    case State::ReadOnly:
        if (edit)
            edit->setReadOnly(true);
        if (auto *date = qobject_cast<QAbstractSpinBox *>(widget))
            date->setReadOnly(true);
        break;
    case State::Forward:
    case State::ForwardHover:
        if (edit)
            edit->setForwardFormType(FORM_WS_SCHEDULE4);
        if (state == State::ForwardHover)
            widget->setAttribute(Qt::WA_UnderMouse);
        break;
    case State::Worksheet:
        if (edit) {
            edit->setWorksheetType(30100);
            edit->setAttID(30100);
        }
        break;
    case State::Disabled:
        widget->setEnabled(false);
        break;
    case State::Hover:
        // Offscreen there is no pointer: mark the widget as under it, which
        // is what the style sheets' :hover looks at.
        widget->setAttribute(Qt::WA_UnderMouse);
        break;
    case State::Checked:
        if (auto *box = qobject_cast<QCheckBox *>(widget))
            box->setChecked(true);
        break;
    case State::Empty:
        if (auto *date = qobject_cast<StyledDateEdit *>(widget))
            date->setDate(QDate());
        break;
    case State::Focused:
        break;
    }
}

// Labels and check boxes get a caption, so their look shows.
void giveCaption(QWidget *widget)
{
    if (auto *label = qobject_cast<QLabel *>(widget))
        label->setText(QStringLiteral("Total income 15000"));
    if (auto *box = qobject_cast<QCheckBox *>(widget))
        box->setText(QStringLiteral("Claim"));
}

} // namespace

void shootWidgets(Gallery &gallery)
{
    gallery.section(QStringLiteral("Field widgets"));
    for (Kind const &kind : kinds()) {
        for (State const state : kind.states) {
            StateInfo const &info = States[int(state)];
            QWidget frame;
            frame.setFixedSize(ShotWidth, ShotHeight);
            frame.setAutoFillBackground(true);
            frame.setPalette(QPalette(Qt::white));
            auto *layout = new QHBoxLayout(&frame);
            layout->setContentsMargins(10, 8, 10, 8);
            QWidget *widget = kind.make();
            giveCaption(widget);
            layout->addWidget(widget);
            applyState(widget, state);
            gallery.shoot(&frame,
                QStringLiteral("widget-%1-%2").arg(QLatin1String(kind.file), QLatin1String(info.file)),
                QStringLiteral("%1, %2").arg(QLatin1String(kind.name), QLatin1String(info.caption)),
                state == State::Focused ? widget : nullptr);
        }
    }
}

} // namespace Tool
