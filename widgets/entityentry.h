#ifndef LIBCONTROL_WIDGETS_ENTITYENTRY_H
#define LIBCONTROL_WIDGETS_ENTITYENTRY_H

#include <LibControl/libcontrol_export.h>

#include <QString>

/**
 * A person or organisation shown on a page: its kind, name, identifier and
 * contact details. A plain value, copied freely.
 */
class LIBCONTROL_EXPORT EntityEntry
{
public:
    /** The entity kinds. */
    enum Type { Person = 1, Corporation = 2, Partnership = 4, Trust = 8 };

    /** An empty entry of the given kind. */
    explicit EntityEntry(int type = Person);

    /**
     * Replaces every value. An empty `govID` is replaced by a sample one of
     * the kind: "000000000" for a person, "123456789" for a corporation,
     * "T12345678" for a trust, "987654321" for any other kind.
     */
    void update(const QString &first, const QString &last, int type, const QString &govID, const QString &addr1,
                const QString &addrA, const QString &addrB, const QString &postal, const QString &email,
                const QString &phone);

    QString getFirstName() const { return m_firstName; }
    QString getLastName() const { return m_lastName; }
    int getEntityType() const { return m_type; }
    QString getGovID() const { return m_govID; }
    QString getEmail() const { return m_email; }
    QString getAddr1() const { return m_addr1; }
    QString getPostal() const { return m_postal; }
    QString getPhone() const { return m_phone; }

    bool isPerson() const { return m_type == Person; }
    bool isCorp() const { return m_type == Corporation; }
    bool isPartnership() const { return m_type == Partnership; }
    bool isTrust() const { return m_type == Trust; }

    /** "(corporation)", "(partnership)", "(trust)", or "(person)" for every other kind. */
    QString getEntityTypeName() const;
    /**
     * For a person (or kind 0) the first and last names joined by one blank,
     * with no blank when the first name is empty; for an organisation the
     * first name alone, where its name is kept.
     */
    QString getName() const;

private:
    int m_type;
    QString m_firstName;
    QString m_lastName;
    QString m_govID;
    QString m_addr1;
    QString m_addrA;
    QString m_addrB;
    QString m_postal;
    QString m_email;
    QString m_phone;
};

#endif
