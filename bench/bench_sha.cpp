// Throughput of SHA1 and SHA256 on small, medium and large buffers, with
// OpenSSL's digests beside them when the build found OpenSSL.
//
//   bench_sha [--portable]
//
// Each figure is the best of several timed runs, so a busy machine shows
// less noise; --portable forces the plain C++ compression.

#include <LibControl/services/sha1.h>
#include <LibControl/services/sha256.h>
#include <LibControl/services/sha_p.h>

#ifdef LIBCONTROL_BENCH_OPENSSL
#include <openssl/evp.h>
#endif

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace {

using Digest = std::function<void(unsigned char const *, size_t)>;

// Bytes hashed per timed run: small buffers are hashed many times over.
size_t const BytesPerRun = size_t(64) << 20;
int const Runs = 7;

double megabytesPerSecond(Digest const &digest, std::vector<unsigned char> const &buffer)
{
    size_t const repeats = std::max<size_t>(1, BytesPerRun / buffer.size());
    auto const start = std::chrono::steady_clock::now();
    for (size_t i = 0; i < repeats; ++i)
        digest(buffer.data(), buffer.size());
    std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - start;
    return double(repeats * buffer.size()) / 1e6 / seconds.count();
}

template<class Hash>
Digest ours()
{
    return [](unsigned char const *data, size_t size) {
        Hash hash;
        hash.add(data, size);
        unsigned char out[Hash::HashBytes];
        hash.getHash(out);
    };
}

#ifdef LIBCONTROL_BENCH_OPENSSL
Digest openssl(EVP_MD const *md)
{
    return [md](unsigned char const *data, size_t size) {
        static EVP_MD_CTX *context = EVP_MD_CTX_new();
        unsigned char out[EVP_MAX_MD_SIZE];
        unsigned int length = 0;
        EVP_DigestInit_ex(context, md, nullptr);
        EVP_DigestUpdate(context, data, size);
        EVP_DigestFinal_ex(context, out, &length);
    };
}
#endif

// Runs alternate between the two implementations so that a burst of load
// from elsewhere hits both alike; the best run of each counts.
void report(char const *algorithm, Digest const &mine, Digest const &theirs, std::vector<unsigned char> const &buffer,
            char const *sizeName)
{
    double ourBest = 0, theirBest = 0;
    for (int run = 0; run < Runs; ++run) {
        ourBest = std::max(ourBest, megabytesPerSecond(mine, buffer));
        if (theirs)
            theirBest = std::max(theirBest, megabytesPerSecond(theirs, buffer));
    }
    if (!theirs) {
        std::printf("%-8s %-7s %10.1f MB/s\n", algorithm, sizeName, ourBest);
        return;
    }
    std::printf("%-8s %-7s %10.1f MB/s  OpenSSL %10.1f MB/s  ratio %.3f\n", algorithm, sizeName, ourBest, theirBest,
                ourBest / theirBest);
}

} // namespace

int main(int argc, char **argv)
{
    using namespace LibControl::detail;
    if (argc > 1 && std::strcmp(argv[1], "--portable") == 0)
        setShaEngine(ShaEngine::Portable);
    std::printf("engine: %s\n", activeShaEngine() == ShaEngine::Portable ? "portable" : "x86 SHA instructions");

    Digest sha1Theirs, sha256Theirs;
#ifdef LIBCONTROL_BENCH_OPENSSL
    EVP_MD *sha1Md = EVP_MD_fetch(nullptr, "SHA1", nullptr);
    EVP_MD *sha256Md = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    sha1Theirs = openssl(sha1Md);
    sha256Theirs = openssl(sha256Md);
#endif

    struct {
        char const *name;
        size_t size;
    } const sizes[] = {{"1 KiB", 1024}, {"64 KiB", 64 * 1024}, {"64 MiB", size_t(64) << 20}};
    for (auto const &size : sizes) {
        std::vector<unsigned char> buffer(size.size);
        for (size_t i = 0; i < buffer.size(); ++i)
            buffer[i] = static_cast<unsigned char>(i * 131 + 7);
        report("SHA-1", ours<SHA1>(), sha1Theirs, buffer, size.name);
        report("SHA-256", ours<SHA256>(), sha256Theirs, buffer, size.name);
    }

#ifdef LIBCONTROL_BENCH_OPENSSL
    EVP_MD_free(sha1Md);
    EVP_MD_free(sha256Md);
#endif
    return 0;
}
