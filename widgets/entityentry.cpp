#include <LibControl/widgets/entityentry.h>

EntityEntry::EntityEntry(int type)
    : m_type(type)
{
}

void EntityEntry::update(const QString &first, const QString &last, int type, const QString &govID,
                         const QString &addr1, const QString &addrA, const QString &addrB, const QString &postal,
                         const QString &email, const QString &phone)
{
    m_firstName = first;
    m_lastName = last;
    m_type = type;
    m_govID = govID;
    m_addr1 = addr1;
    m_addrA = addrA;
    m_addrB = addrB;
    m_postal = postal;
    m_email = email;
    m_phone = phone;
    if (m_govID.isEmpty()) {
        switch (type) {
        case Person: m_govID = QStringLiteral("000000000"); break;
        case Corporation: m_govID = QStringLiteral("123456789"); break;
        case Trust: m_govID = QStringLiteral("T12345678"); break;
        default: m_govID = QStringLiteral("987654321"); break;
        }
    }
}

QString EntityEntry::getEntityTypeName() const
{
    switch (m_type) {
    case Corporation: return QStringLiteral("(corporation)");
    case Partnership: return QStringLiteral("(partnership)");
    case Trust: return QStringLiteral("(trust)");
    default: return QStringLiteral("(person)");
    }
}

QString EntityEntry::getName() const
{
    if (m_type != 0 && m_type != Person)
        return m_firstName;
    if (m_firstName.isEmpty())
        return m_lastName;
    return m_firstName + QLatin1Char(' ') + m_lastName;
}
