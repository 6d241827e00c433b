#include <LibControl/forms/taxformdata.h>

#include <LibControl/worksheets/WorkSheetData.h>
#include <LibControl/worksheets/fieldvalues_p.h>

void CTaxData_Form::ChangeToNewYearData(bool keep)
{
    for (CField *field : m_fields)
        LibControl::detail::rollFieldIntoNewYear(*field, keep);
    for (CWSBaseData *worksheet : m_listWorksheets)
        worksheet->ChangeToNewYearData(keep);
}
