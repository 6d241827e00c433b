// Run-time choice of the SHA compression code, and the block buffering and
// padding shared by SHA1 and SHA256.

#include <LibControl/services/sha_p.h>

#include <algorithm>
#include <atomic>
#include <cstring>

#if (defined(__x86_64__) || defined(__i386__)) && (defined(__GNUC__) || defined(__clang__))
#include <cpuid.h>
#define LIBCONTROL_SHA_X86_CPUID 1
#endif

namespace LibControl {
namespace detail {

namespace {

bool processorHasShaExtensions()
{
#ifdef LIBCONTROL_SHA_X86_CPUID
    unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
    if (!__get_cpuid(1, &eax, &ebx, &ecx, &edx))
        return false;
    bool const ssse3 = ecx & (1u << 9);
    bool const sse41 = ecx & (1u << 19);
    if (!__get_cpuid_count(7, 0, &eax, &ebx, &ecx, &edx))
        return false;
    bool const sha = ebx & (1u << 29);
    return ssse3 && sse41 && sha;
#else
    return false;
#endif
}

struct Engines
{
    std::atomic<ShaCompress> sha1;
    std::atomic<ShaCompress> sha256;
    std::atomic<ShaEngine> active;
    bool extensions;

    Engines()
        : extensions(sha1CompressX86 && sha256CompressX86 && processorHasShaExtensions())
    {
        select(extensions ? ShaEngine::X86ShaExtensions : ShaEngine::Portable);
    }

    void select(ShaEngine engine)
    {
        bool const x86 = engine == ShaEngine::X86ShaExtensions;
        sha1.store(x86 ? sha1CompressX86 : &sha1CompressPortable, std::memory_order_relaxed);
        sha256.store(x86 ? sha256CompressX86 : &sha256CompressPortable, std::memory_order_relaxed);
        active.store(engine, std::memory_order_relaxed);
    }
};

// Chosen once, on first use, so a digest computed during static
// initialisation of another library still finds its engine.
Engines &engines()
{
    static Engines instance;
    return instance;
}

} // namespace

bool shaExtensionsAvailable()
{
    return engines().extensions;
}

ShaEngine activeShaEngine()
{
    return engines().active.load(std::memory_order_relaxed);
}

bool setShaEngine(ShaEngine engine)
{
    if (engine == ShaEngine::X86ShaExtensions && !shaExtensionsAvailable())
        return false;
    engines().select(engine);
    return true;
}

ShaCompress sha1Compress()
{
    return engines().sha1.load(std::memory_order_relaxed);
}

ShaCompress sha256Compress()
{
    return engines().sha256.load(std::memory_order_relaxed);
}

void shaAppend(uint32_t *state, ShaCompress compress, uint64_t &compressedBytes, unsigned char *buffer,
               unsigned &bufferSize, void const *data, size_t numBytes)
{
    if (numBytes == 0)
        return;
    auto const *bytes = static_cast<unsigned char const *>(data);
    if (bufferSize > 0) {
        size_t const take = std::min<size_t>(numBytes, 64 - bufferSize);
        std::memcpy(buffer + bufferSize, bytes, take);
        bufferSize += unsigned(take);
        bytes += take;
        numBytes -= take;
        if (bufferSize < 64)
            return;
        compress(state, buffer, 1);
        compressedBytes += 64;
        bufferSize = 0;
    }
    if (size_t const blocks = numBytes / 64) {
        compress(state, bytes, blocks);
        compressedBytes += 64 * uint64_t(blocks);
        bytes += 64 * blocks;
        numBytes -= 64 * blocks;
    }
    if (numBytes > 0)
        std::memcpy(buffer, bytes, numBytes);
    bufferSize = unsigned(numBytes);
}

void shaFinish(uint32_t *state, ShaCompress compress, uint64_t compressedBytes, unsigned char *tail,
               unsigned tailSize)
{
    uint64_t const bits = (compressedBytes + tailSize) * 8;
    tail[tailSize++] = 0x80;
    if (tailSize > 56) {
        std::memset(tail + tailSize, 0, 64 - tailSize);
        compress(state, tail, 1);
        tailSize = 0;
    }
    std::memset(tail + tailSize, 0, 56 - tailSize);
    for (int i = 0; i < 8; ++i)
        tail[56 + i] = static_cast<unsigned char>(bits >> (56 - 8 * i));
    compress(state, tail, 1);
}

void shaStoreWords(uint32_t const *words, size_t count, unsigned char *out)
{
    for (size_t i = 0; i < count; ++i) {
        out[4 * i] = static_cast<unsigned char>(words[i] >> 24);
        out[4 * i + 1] = static_cast<unsigned char>(words[i] >> 16);
        out[4 * i + 2] = static_cast<unsigned char>(words[i] >> 8);
        out[4 * i + 3] = static_cast<unsigned char>(words[i]);
    }
}

std::string shaHex(unsigned char const *bytes, size_t count)
{
    static char const digits[] = "0123456789abcdef";
    std::string hex(2 * count, '0');
    for (size_t i = 0; i < count; ++i) {
        hex[2 * i] = digits[bytes[i] >> 4];
        hex[2 * i + 1] = digits[bytes[i] & 0x0F];
    }
    return hex;
}

} // namespace detail
} // namespace LibControl
