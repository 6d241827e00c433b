// SHA-1 and SHA-256 block compression with the x86 SHA instructions.
// Only these functions are compiled for the extension (per-function target
// attributes), so the rest of the library runs on any x86 processor; the
// engine is picked at run time after a cpuid check.

#include <LibControl/services/sha_p.h>

#if (defined(__x86_64__) || defined(__i386__)) && (defined(__GNUC__) || defined(__clang__))

#include <immintrin.h>

#define SHA_TARGET __attribute__((target("sha,ssse3,sse4.1")))
#define SHA_INLINE SHA_TARGET __attribute__((always_inline)) inline

namespace {

// The four message words of a group of rounds sit in one register, first
// word in the lowest lane for SHA-256 and in the highest lane for SHA-1.
SHA_INLINE __m128i loadWordsLowFirst(unsigned char const *p)
{
    __m128i const byteSwapWords = _mm_set_epi64x(0x0c0d0e0f08090a0bULL, 0x0405060700010203ULL);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<__m128i const *>(p)), byteSwapWords);
}

SHA_INLINE __m128i loadWordsHighFirst(unsigned char const *p)
{
    __m128i const reverseBytes = _mm_set_epi64x(0x0001020304050607ULL, 0x08090a0b0c0d0e0fULL);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<__m128i const *>(p)), reverseBytes);
}

// Round groups I..15 of SHA-256 (four rounds each). The message words live
// in four registers that roll over: m[I % 4] holds W[I - 4] until replaced.
template<int I>
SHA_INLINE void sha256Groups(__m128i (&m)[4], __m128i const *k, __m128i &abef, __m128i &cdgh)
{
    if constexpr (I < 16) {
        __m128i &w = m[I % 4];
        if constexpr (I >= 4) {
            __m128i const sum = _mm_add_epi32(_mm_sha256msg1_epu32(w, m[(I + 1) % 4]),
                                              _mm_alignr_epi8(m[(I + 3) % 4], m[(I + 2) % 4], 4));
            w = _mm_sha256msg2_epu32(sum, m[(I + 3) % 4]);
        }
        __m128i msg = _mm_add_epi32(w, _mm_loadu_si128(k + I));
        cdgh = _mm_sha256rnds2_epu32(cdgh, abef, msg);
        msg = _mm_shuffle_epi32(msg, 0x0E);
        abef = _mm_sha256rnds2_epu32(abef, cdgh, msg);
        sha256Groups<I + 1>(m, k, abef, cdgh);
    }
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
        __m128i m[4] = {loadWordsLowFirst(blocks), loadWordsLowFirst(blocks + 16), loadWordsLowFirst(blocks + 32),
                        loadWordsLowFirst(blocks + 48)};
        sha256Groups<0>(m, k, abef, cdgh);
        abef = _mm_add_epi32(abef, abefSaved);
        cdgh = _mm_add_epi32(cdgh, cdghSaved);
    }

    tmp = _mm_shuffle_epi32(abef, 0x1B);
    cdgh = _mm_shuffle_epi32(cdgh, 0xB1);
    _mm_storeu_si128(reinterpret_cast<__m128i *>(state), _mm_blend_epi16(tmp, cdgh, 0xF0));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(state + 4), _mm_alignr_epi8(cdgh, tmp, 8));
}

// Round groups I..19 of SHA-1, message words rolling as for SHA-256. E of
// the next group comes from A of the group before (sha1nexte); the round
// function, I / 5, must be an immediate.
template<int I>
SHA_INLINE void sha1Groups(__m128i (&m)[4], __m128i &abcd, __m128i &previous, __m128i &e)
{
    if constexpr (I < 20) {
        __m128i &w = m[I % 4];
        if constexpr (I >= 4) {
            __m128i const mixed = _mm_xor_si128(_mm_sha1msg1_epu32(w, m[(I + 1) % 4]), m[(I + 2) % 4]);
            w = _mm_sha1msg2_epu32(mixed, m[(I + 3) % 4]);
        }
        e = I == 0 ? _mm_add_epi32(e, w) : _mm_sha1nexte_epu32(previous, w);
        previous = abcd;
        abcd = _mm_sha1rnds4_epu32(abcd, e, I / 5);
        sha1Groups<I + 1>(m, abcd, previous, e);
    }
}

SHA_TARGET void sha1CompressShaNi(uint32_t *state, unsigned char const *blocks, size_t count)
{
    __m128i abcd = _mm_shuffle_epi32(_mm_loadu_si128(reinterpret_cast<__m128i const *>(state)), 0x1B);
    __m128i e = _mm_set_epi32(int(state[4]), 0, 0, 0);

    for (; count > 0; --count, blocks += 64) {
        __m128i const abcdSaved = abcd;
        __m128i const eSaved = e;
        __m128i previous = abcd;
        __m128i m[4] = {loadWordsHighFirst(blocks), loadWordsHighFirst(blocks + 16), loadWordsHighFirst(blocks + 32),
                        loadWordsHighFirst(blocks + 48)};
        sha1Groups<0>(m, abcd, previous, e);
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
