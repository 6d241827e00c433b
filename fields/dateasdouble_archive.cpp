// DateAsDouble lives with the other date helpers but is archived through the
// field layer's stream, so its archive code sits here.

#include <LibControl/common/dates.h>
#include <LibControl/fields/datastream.h>

void DateAsDouble::serialize(MyDataStream &ar)
{
    if (ar.IsStoring())
        ar << m_value;
    else
        ar >> m_value;
}
