// SHA-1 and SHA-256 block compression with the x86 SHA instructions.
// Only these functions are compiled for the extension (per-function target
// attributes), so the rest of the library runs on any x86 processor; the
// engine is picked at run time after a cpuid check.

#include <LibControl/services/sha_p.h>

#if (defined(__x86_64__) || defined(__i386__)) && (defined(__GNUC__) || defined(__clang__))

#include <immintrin.h>

#define SHA_TARGET __attribute__((target("sha,ssse3,sse4.1")))

namespace {

// The four message words of a group of rounds sit in one register, first
// word in the lowest lane for SHA-256 and in the highest lane for SHA-1.
SHA_TARGET inline __m128i loadWordsLowFirst(unsigned char const *p)
{
    __m128i const byteSwapWords = _mm_set_epi64x(0x0c0d0e0f08090a0bULL, 0x0405060700010203ULL);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<__m128i const *>(p)), byteSwapWords);
}

SHA_TARGET inline __m128i loadWordsHighFirst(unsigned char const *p)
{
    __m128i const reverseBytes = _mm_set_epi64x(0x0001020304050607ULL, 0x08090a0b0c0d0e0fULL);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<__m128i const *>(p)), reverseBytes);
}

SHA_TARGET void sha256CompressShaNi(uint32_t *state, unsigned char const *blocks, size_t count)
{
    auto const *k = reinterpret_cast<__m128i const *>(LibControl::detail::sha256RoundConstants());

    // The instructions keep the state as the register pair ABEF / CDGH.
    __m128i tmp = _mm_shuffle_epi32(_mm_loadu_si128(reinterpret_cast<__m128i const *>(state)), 0xB1);
    __m128i cdgh = _mm_shuffle_epi32(_mm_loadu_si128(reinterpret_cast<__m128i const *>(state + 4)), 0x1B);
    __m128i abef = _mm_alignr_epi8(tmp, cdgh, 8);
    cdgh = _mm_blend_epi16(cdgh, tmp, 0xF0);

    for (; count > 0; --count, blocks += 64) {
        __m128i const abefSaved = abef;
        __m128i const cdghSaved = cdgh;
        __m128i w[16];
        for (int i = 0; i < 4; ++i)
            w[i] = loadWordsLowFirst(blocks + 16 * i);
#pragma GCC unroll 16
        for (int i = 0; i < 16; ++i) {
            if (i >= 4) {
                __m128i const sigma0 = _mm_sha256msg1_epu32(w[i - 4], w[i - 3]);
                __m128i const sum = _mm_add_epi32(sigma0, _mm_alignr_epi8(w[i - 1], w[i - 2], 4));
                w[i] = _mm_sha256msg2_epu32(sum, w[i - 1]);
            }
            __m128i msg = _mm_add_epi32(w[i], _mm_loadu_si128(k + i));
            cdgh = _mm_sha256rnds2_epu32(cdgh, abef, msg);
            msg = _mm_shuffle_epi32(msg, 0x0E);
            abef = _mm_sha256rnds2_epu32(abef, cdgh, msg);
        }
        abef = _mm_add_epi32(abef, abefSaved);
        cdgh = _mm_add_epi32(cdgh, cdghSaved);
    }

    tmp = _mm_shuffle_epi32(abef, 0x1B);
    cdgh = _mm_shuffle_epi32(cdgh, 0xB1);
    _mm_storeu_si128(reinterpret_cast<__m128i *>(state), _mm_blend_epi16(tmp, cdgh, 0xF0));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(state + 4), _mm_alignr_epi8(cdgh, tmp, 8));
}

// Four SHA-1 rounds of group `i`; the round function comes from i / 5 and
// must be an immediate, hence the template.
template<int Function>
SHA_TARGET inline void sha1Group(int i, __m128i *w, __m128i &abcd, __m128i &previous, __m128i &e)
{
    if (i >= 4)
        w[i] = _mm_sha1msg2_epu32(_mm_xor_si128(_mm_sha1msg1_epu32(w[i - 4], w[i - 3]), w[i - 2]), w[i - 1]);
    e = i == 0 ? _mm_add_epi32(e, w[0]) : _mm_sha1nexte_epu32(previous, w[i]);
    previous = abcd;
    abcd = _mm_sha1rnds4_epu32(abcd, e, Function);
}

SHA_TARGET void sha1CompressShaNi(uint32_t *state, unsigned char const *blocks, size_t count)
{
    __m128i abcd = _mm_shuffle_epi32(_mm_loadu_si128(reinterpret_cast<__m128i const *>(state)), 0x1B);
    __m128i e = _mm_set_epi32(int(state[4]), 0, 0, 0);

    for (; count > 0; --count, blocks += 64) {
        __m128i const abcdSaved = abcd;
        __m128i const eSaved = e;
        __m128i previous = abcd;
        __m128i w[20];
        for (int i = 0; i < 4; ++i)
            w[i] = loadWordsHighFirst(blocks + 16 * i);
#pragma GCC unroll 5
        for (int i = 0; i < 5; ++i)
            sha1Group<0>(i, w, abcd, previous, e);
#pragma GCC unroll 5
        for (int i = 5; i < 10; ++i)
            sha1Group<1>(i, w, abcd, previous, e);
#pragma GCC unroll 5
        for (int i = 10; i < 15; ++i)
            sha1Group<2>(i, w, abcd, previous, e);
#pragma GCC unroll 5
        for (int i = 15; i < 20; ++i)
            sha1Group<3>(i, w, abcd, previous, e);
        e = _mm_sha1nexte_epu32(previous, eSaved);
        abcd = _mm_add_epi32(abcd, abcdSaved);
    }

    _mm_storeu_si128(reinterpret_cast<__m128i *>(state), _mm_shuffle_epi32(abcd, 0x1B));
    state[4] = uint32_t(_mm_extract_epi32(e, 3));
}

} // namespace

namespace LibControl {
namespace detail {
ShaCompress const sha1CompressX86 = &sha1CompressShaNi;
ShaCompress const sha256CompressX86 = &sha256CompressShaNi;
} // namespace detail
} // namespace LibControl

#else

namespace LibControl {
namespace detail {
ShaCompress const sha1CompressX86 = nullptr;
ShaCompress const sha256CompressX86 = nullptr;
} // namespace detail
} // namespace LibControl

#endif
