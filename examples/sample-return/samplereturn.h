#ifndef SAMPLE_RETURN_SAMPLERETURN_H
#define SAMPLE_RETURN_SAMPLERETURN_H

#include "samplet1form.h"

#include <LibControl/worksheets/dependantinfo.h>
#include <LibControl/worksheets/taxstairs.h>

#include <QString>

/**
 * Everything one return owns: the dependant list, the federal schedule and
 * the T1 form that points at both. The application owns these objects; the
 * form and its worksheets only point at them.
 */
class SampleReturn
{
public:
    /** The archive version the sample writes, and the key its blocks are scrambled with. */
    static constexpr unsigned int ArchiveVersion = 0x10220;
    static char const *const Key;

    SampleReturn();

    /** Fills a 2025 return for a single parent with two children. */
    void fillExample();

    /** Writes the return file: the dependant list, then the form block. */
    bool save(QString const &path, QString *error = nullptr);
    /** Reads a return file written by save(). */
    bool load(QString const &path, QString *error = nullptr);
    /** The same return, value for value. */
    bool sameAs(SampleReturn &other);

    /** The print-data XML of the form. */
    bool writePrintData(QString const &path);

    DependantInfoStruct dependants;
    STRUCT_TAX_STAIRS_JURISDICTION federal;
    SampleT1Form t1;
};

#endif
