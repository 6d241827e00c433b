#include <LibControl/services/sha1.h>

#include <LibControl/services/sha_p.h>

using namespace LibControl::detail;

namespace {

inline uint32_t rotl(uint32_t x, int n)
{
    return (x << n) | (x >> (32 - n));
}

inline uint32_t loadBigEndian(unsigned char const *p)
{
    return uint32_t(p[0]) << 24 | uint32_t(p[1]) << 16 | uint32_t(p[2]) << 8 | uint32_t(p[3]);
}

} // namespace

namespace LibControl {
namespace detail {

void sha1CompressPortable(uint32_t *state, unsigned char const *blocks, size_t count)
{
    for (; count > 0; --count, blocks += 64) {
        uint32_t w[80];
        for (int t = 0; t < 16; ++t)
            w[t] = loadBigEndian(blocks + 4 * t);
        for (int t = 16; t < 80; ++t)
            w[t] = rotl(w[t - 3] ^ w[t - 8] ^ w[t - 14] ^ w[t - 16], 1);

        uint32_t a = state[0], b = state[1], c = state[2], d = state[3], e = state[4];
        auto round = [&](uint32_t f, uint32_t k, uint32_t wt) {
            uint32_t const temp = rotl(a, 5) + f + e + k + wt;
            e = d;
            d = c;
            c = rotl(b, 30);
            b = a;
            a = temp;
        };
        for (int t = 0; t < 20; ++t)
            round((b & c) | (~b & d), 0x5a827999, w[t]);
        for (int t = 20; t < 40; ++t)
            round(b ^ c ^ d, 0x6ed9eba1, w[t]);
        for (int t = 40; t < 60; ++t)
            round((b & c) | (b & d) | (c & d), 0x8f1bbcdc, w[t]);
        for (int t = 60; t < 80; ++t)
            round(b ^ c ^ d, 0xca62c1d6, w[t]);

        state[0] += a;
        state[1] += b;
        state[2] += c;
        state[3] += d;
        state[4] += e;
    }
}

} // namespace detail
} // namespace LibControl

SHA1::SHA1()
{
    reset();
}

void SHA1::reset()
{
    m_numBytes = 0;
    m_bufferSize = 0;
    m_hash[0] = 0x67452301;
    m_hash[1] = 0xefcdab89;
    m_hash[2] = 0x98badcfe;
    m_hash[3] = 0x10325476;
    m_hash[4] = 0xc3d2e1f0;
}

void SHA1::add(void const *data, size_t numBytes)
{
    shaAppend(m_hash, sha1Compress(), m_numBytes, m_buffer, m_bufferSize, data, numBytes);
}

void SHA1::processBuffer()
{
    shaFinish(m_hash, sha1Compress(), m_numBytes, m_buffer, m_bufferSize);
}

void SHA1::getHash(unsigned char *out) const
{
    SHA1 tail(*this);
    tail.processBuffer();
    shaStoreWords(tail.m_hash, 5, out);
}

std::string SHA1::getHash() const
{
    unsigned char digest[HashBytes];
    getHash(digest);
    return shaHex(digest, HashBytes);
}

std::string SHA1::operator()(void const *data, size_t numBytes)
{
    reset();
    add(data, numBytes);
    return getHash();
}

std::string SHA1::operator()(std::string const &text)
{
    return (*this)(text.data(), text.size());
}
