#ifndef LIBCONTROL_SERVICES_SHA_P_H
#define LIBCONTROL_SERVICES_SHA_P_H

// Internal: the block compression functions behind SHA1 and SHA256 and the
// run-time choice between the processor's SHA instructions and portable code.
// Exported only so the unit tests can drive both paths; never installed.

#include <LibControl/libcontrol_export.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace LibControl {
namespace detail {

/** Compresses `count` consecutive 64-byte blocks into `state`. */
using ShaCompress = void (*)(uint32_t *state, unsigned char const *blocks, size_t count);

/** Which compression code the digest classes use. */
enum class ShaEngine {
    Portable, ///< plain C++, any processor
    X86ShaExtensions, ///< the x86 SHA instructions (with SSSE3 and SSE4.1)
};

/** True when this build and this processor can run the x86 SHA instructions. */
LIBCONTROL_EXPORT bool shaExtensionsAvailable();

/** The engine in use: the fastest available one unless a test chose another. */
LIBCONTROL_EXPORT ShaEngine activeShaEngine();

/**
 * Makes every SHA1 and SHA256 object use `engine` from now on; returns false
 * (and changes nothing) when the engine is not available. Not thread-safe
 * against digests running at the same time: for tests and benchmarks.
 */
LIBCONTROL_EXPORT bool setShaEngine(ShaEngine engine);

/** The compression function of the active engine. */
ShaCompress sha1Compress();
ShaCompress sha256Compress();

LIBCONTROL_EXPORT void sha1CompressPortable(uint32_t *state, unsigned char const *blocks, size_t count);
LIBCONTROL_EXPORT void sha256CompressPortable(uint32_t *state, unsigned char const *blocks, size_t count);

/**
 * Appends `numBytes` bytes from `data` to a running digest: tops up the
 * partial block in `buffer` (`bufferSize` bytes, below 64), compresses whole
 * blocks straight from `data` and keeps the rest in `buffer`.
 * `compressedBytes` grows by 64 for every block compressed into `state`.
 */
void shaAppend(uint32_t *state, ShaCompress compress, uint64_t &compressedBytes, unsigned char *buffer,
               unsigned &bufferSize, void const *data, size_t numBytes);

/**
 * Pads the message tail (`tailSize` bytes, below 64, in `tail`, which has
 * room for 64) after `compressedBytes` bytes, and compresses the final one
 * or two blocks into `state`: a 0x80 byte, zeros, the 64-bit big-endian
 * bit length.
 */
void shaFinish(uint32_t *state, ShaCompress compress, uint64_t compressedBytes, unsigned char *tail,
               unsigned tailSize);

/** Writes `count` words big-endian into `out`. */
void shaStoreWords(uint32_t const *words, size_t count, unsigned char *out);

/** Lowercase hexadecimal, high nibble first. */
std::string shaHex(unsigned char const *bytes, size_t count);

/** The 64 round constants of SHA-256, shared by both engines. */
uint32_t const *sha256RoundConstants();

/** Only meaningful where shaExtensionsAvailable(); null on other architectures. */
LIBCONTROL_EXPORT extern ShaCompress const sha1CompressX86;
LIBCONTROL_EXPORT extern ShaCompress const sha256CompressX86;

} // namespace detail
} // namespace LibControl

#endif
