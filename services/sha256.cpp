#include <LibControl/services/sha256.h>

#include <LibControl/services/sha_p.h>

#include <cstring>

using namespace LibControl::detail;

namespace {

uint32_t const RoundConstants[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2,
};

inline uint32_t rotr(uint32_t x, int n)
{
    return (x >> n) | (x << (32 - n));
}

inline uint32_t loadBigEndian(unsigned char const *p)
{
    return uint32_t(p[0]) << 24 | uint32_t(p[1]) << 16 | uint32_t(p[2]) << 8 | uint32_t(p[3]);
}

} // namespace

namespace LibControl {
namespace detail {

uint32_t const *sha256RoundConstants()
{
    return RoundConstants;
}

void sha256CompressPortable(uint32_t *state, unsigned char const *blocks, size_t count)
{
    for (; count > 0; --count, blocks += 64) {
        uint32_t w[64];
        for (int t = 0; t < 16; ++t)
            w[t] = loadBigEndian(blocks + 4 * t);
        for (int t = 16; t < 64; ++t) {
            uint32_t const s0 = rotr(w[t - 15], 7) ^ rotr(w[t - 15], 18) ^ (w[t - 15] >> 3);
            uint32_t const s1 = rotr(w[t - 2], 17) ^ rotr(w[t - 2], 19) ^ (w[t - 2] >> 10);
            w[t] = w[t - 16] + s0 + w[t - 7] + s1;
        }

        uint32_t a = state[0], b = state[1], c = state[2], d = state[3];
        uint32_t e = state[4], f = state[5], g = state[6], h = state[7];
        for (int t = 0; t < 64; ++t) {
            uint32_t const s1 = rotr(e, 6) ^ rotr(e, 11) ^ rotr(e, 25);
            uint32_t const choose = (e & f) ^ (~e & g);
            uint32_t const temp1 = h + s1 + choose + RoundConstants[t] + w[t];
            uint32_t const s0 = rotr(a, 2) ^ rotr(a, 13) ^ rotr(a, 22);
            uint32_t const majority = (a & b) ^ (a & c) ^ (b & c);
            h = g;
            g = f;
            f = e;
            e = d + temp1;
            d = c;
            c = b;
            b = a;
            a = temp1 + s0 + majority;
        }

        state[0] += a;
        state[1] += b;
        state[2] += c;
        state[3] += d;
        state[4] += e;
        state[5] += f;
        state[6] += g;
        state[7] += h;
    }
}

} // namespace detail
} // namespace LibControl

SHA256::SHA256()
{
    reset();
}

void SHA256::reset()
{
    static uint32_t const initial[8] = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                        0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    m_numBytes = 0;
    m_bufferSize = 0;
    std::memcpy(m_hash, initial, sizeof m_hash);
}

void SHA256::add(void const *data, size_t numBytes)
{
    shaAppend(m_hash, sha256Compress(), m_numBytes, m_buffer, m_bufferSize, data, numBytes);
}

void SHA256::processBuffer()
{
    shaFinish(m_hash, sha256Compress(), m_numBytes, m_buffer, m_bufferSize);
}

void SHA256::getHash(unsigned char *out) const
{
    SHA256 tail(*this);
    tail.processBuffer();
    shaStoreWords(tail.m_hash, 8, out);
}

std::string SHA256::getHash() const
{
    unsigned char digest[HashBytes];
    getHash(digest);
    return shaHex(digest, HashBytes);
}

std::string SHA256::operator()(void const *data, size_t numBytes)
{
    reset();
    add(data, numBytes);
    return getHash();
}

std::string SHA256::operator()(std::string const &text)
{
    return (*this)(text.data(), text.size());
}
