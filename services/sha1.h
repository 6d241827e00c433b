#ifndef LIBCONTROL_SERVICES_SHA1_H
#define LIBCONTROL_SERVICES_SHA1_H

#include <LibControl/libcontrol_export.h>

#include <cstddef>
#include <cstdint>
#include <string>

/**
 * Incremental SHA-1 digest (FIPS 180-4), 20 bytes.
 *
 * Feed bytes with add() in pieces of any size; getHash() may be called at
 * any time, any number of times, and never disturbs the running state, so
 * more data can follow. The block compression uses the processor's SHA
 * instructions when it has them, portable code otherwise; the digest is the
 * same either way. Objects are independent and may be copied.
 */
class LIBCONTROL_EXPORT SHA1
{
public:
    /** Length of the digest in bytes. */
    enum { HashBytes = 20 };

    /** Starts an empty message (reset()). */
    SHA1();

    /** Forgets every byte added: the state returns to the standard's initial value. */
    void reset();

    /** Appends `numBytes` bytes from `data`; a null `data` with 0 bytes is allowed. */
    void add(void const *data, size_t numBytes);

    /**
     * Writes the digest of every byte added since the last reset() into
     * `out`, which must hold HashBytes bytes, each state word big-endian.
     */
    void getHash(unsigned char *out) const;

    /** The same digest as 40 lowercase hexadecimal digits. */
    std::string getHash() const;

    /** One-shot digest: reset(), add(data, numBytes), then the hexadecimal getHash(). */
    std::string operator()(void const *data, size_t numBytes);
    /** One-shot digest of the bytes of `text`; discards any earlier state. */
    std::string operator()(std::string const &text);

private:
    /** Pads the buffered tail and compresses the final one or two blocks. */
    void processBuffer();

    uint64_t m_numBytes; ///< bytes already compressed into the state
    unsigned m_bufferSize; ///< bytes waiting in m_buffer, 0 to 63
    unsigned char m_buffer[64];
    uint32_t m_hash[5];
};

#endif
