#include <LibControl/services/sha1.h>
#include <LibControl/services/sha256.h>
#include <LibControl/services/sha_p.h>

#include <QtTest>

#include <random>

using LibControl::detail::ShaEngine;

Q_DECLARE_METATYPE(ShaEngine)

namespace {

QByteArray pseudoRandomBytes(int size, unsigned seed)
{
    std::mt19937 generator(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(generator() & 0xFF);
    return bytes;
}

template<class Hash>
QByteArray hexOfParts(QList<QByteArray> const &parts)
{
    Hash hash;
    for (QByteArray const &part : parts)
        hash.add(part.constData(), size_t(part.size()));
    return QByteArray::fromStdString(hash.getHash());
}

// Digest of the concatenated parts, each given to add() on its own.
QByteArray hexOf(QString const &algorithm, QList<QByteArray> const &parts)
{
    return algorithm == QLatin1String("SHA-1") ? hexOfParts<SHA1>(parts) : hexOfParts<SHA256>(parts);
}

// The one-shot digest taken after unrelated data, and the binary digest
// left behind, both in hexadecimal.
template<class Hash>
QPair<QByteArray, QByteArray> oneShotAndBinary(QByteArray const &message)
{
    Hash hash;
    hash.add("leftover", 8);
    QByteArray const oneShot = QByteArray::fromStdString(hash(message.toStdString()));
    unsigned char digest[Hash::HashBytes];
    hash.getHash(digest);
    return {oneShot, QByteArray(reinterpret_cast<char *>(digest), Hash::HashBytes).toHex()};
}

QList<QByteArray> piecesOf(QByteArray const &message, int piece)
{
    QList<QByteArray> pieces;
    for (int at = 0; at < message.size(); at += piece)
        pieces.append(message.mid(at, piece));
    return pieces;
}

} // namespace

class tst_Sha : public QObject
{
    Q_OBJECT

private:
    void addEngineRows(char const *name, QByteArray const &message, QByteArray const &sha1,
                       QByteArray const &sha256);
    void addAlgorithmEngineColumns();
    bool useEngine(ShaEngine engine);

private Q_SLOTS:
    void cleanup();
    void knownDigests_data();
    void knownDigests();
    void piecesGiveTheSameDigest_data();
    void piecesGiveTheSameDigest();
    void getHashLeavesTheStateAlone_data();
    void getHashLeavesTheStateAlone();
    void compressionEnginesAgree_data();
    void compressionEnginesAgree();
    void unavailableEngineIsRefused();

private:
    ShaEngine const m_defaultEngine = LibControl::detail::activeShaEngine();
};

void tst_Sha::cleanup()
{
    LibControl::detail::setShaEngine(m_defaultEngine);
}

bool tst_Sha::useEngine(ShaEngine engine)
{
    return LibControl::detail::setShaEngine(engine);
}

void tst_Sha::addAlgorithmEngineColumns()
{
    QTest::addColumn<QString>("algorithm");
    QTest::addColumn<ShaEngine>("engine");
}

void tst_Sha::addEngineRows(char const *name, QByteArray const &message, QByteArray const &sha1,
                            QByteArray const &sha256)
{
    struct {
        char const *name;
        ShaEngine engine;
    } const engines[] = {{"portable", ShaEngine::Portable}, {"SHA instructions", ShaEngine::X86ShaExtensions}};
    for (auto const &engine : engines) {
        QTest::addRow("%s, SHA-1, %s", name, engine.name) << QStringLiteral("SHA-1") << engine.engine << message << sha1;
        QTest::addRow("%s, SHA-256, %s", name, engine.name)
            << QStringLiteral("SHA-256") << engine.engine << message << sha256;
    }
}

void tst_Sha::knownDigests_data()
{
    addAlgorithmEngineColumns();
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("expected");
    addEngineRows("empty", QByteArray(), "da39a3ee5e6b4b0d3255bfef95601890afd80709",
                  "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    addEngineRows("abc", "abc", "a9993e364706816aba3e25717850c26c9cd0d89d",
                  "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    addEngineRows("448 bits, padding needs a second block",
                  "abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
                  "84983e441c3bd26ebaae4aa1f95129e5e54670f1",
                  "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    addEngineRows("896 bits",
                  "abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmnhijklmnoijklmnopjklmnopqklmnopqrlmnopqrs"
                  "mnopqrstnopqrstu",
                  "a49b2446a02c645bf419f995b67091253a04a259",
                  "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1");
    addEngineRows("one million a", QByteArray(1000000, 'a'), "34aa973cd4c4daa4f61eeb2bdbad27316534016f",
                  "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

void tst_Sha::knownDigests()
{
    QFETCH(QString, algorithm);
    QFETCH(ShaEngine, engine);
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, expected);
    if (!useEngine(engine))
        QSKIP("this processor has no SHA instructions");

    QCOMPARE(hexOf(algorithm, {message}), expected);
    auto const oneShot =
        algorithm == QLatin1String("SHA-1") ? oneShotAndBinary<SHA1>(message) : oneShotAndBinary<SHA256>(message);
    QCOMPARE(oneShot.first, expected);
    QCOMPARE(oneShot.second, expected);
}

void tst_Sha::piecesGiveTheSameDigest_data()
{
    addAlgorithmEngineColumns();
    QTest::newRow("SHA-1, portable") << QStringLiteral("SHA-1") << ShaEngine::Portable;
    QTest::newRow("SHA-1, SHA instructions") << QStringLiteral("SHA-1") << ShaEngine::X86ShaExtensions;
    QTest::newRow("SHA-256, portable") << QStringLiteral("SHA-256") << ShaEngine::Portable;
    QTest::newRow("SHA-256, SHA instructions") << QStringLiteral("SHA-256") << ShaEngine::X86ShaExtensions;
}

void tst_Sha::piecesGiveTheSameDigest()
{
    QFETCH(QString, algorithm);
    QFETCH(ShaEngine, engine);
    if (!useEngine(engine))
        QSKIP("this processor has no SHA instructions");

    // Every length around one and two blocks, each split at every point.
    QByteArray const data = pseudoRandomBytes(200, 7);
    for (int length = 0; length <= 130; ++length) {
        QByteArray const message = data.left(length);
        QByteArray const whole = hexOf(algorithm, {message});
        for (int piece = 1; piece <= 130; ++piece) {
            QVERIFY2(hexOf(algorithm, piecesOf(message, piece)) == whole,
                     qPrintable(QStringLiteral("length %1, pieces of %2").arg(length).arg(piece)));
        }
        for (int split = 0; split <= length; ++split) {
            QVERIFY2(hexOf(algorithm, {message.left(split), message.mid(split)}) == whole,
                     qPrintable(QStringLiteral("length %1, split at %2").arg(length).arg(split)));
        }
    }
}

void tst_Sha::getHashLeavesTheStateAlone_data()
{
    piecesGiveTheSameDigest_data();
}

void tst_Sha::getHashLeavesTheStateAlone()
{
    QFETCH(QString, algorithm);
    QFETCH(ShaEngine, engine);
    if (!useEngine(engine))
        QSKIP("this processor has no SHA instructions");

    QByteArray const message = pseudoRandomBytes(150, 11);
    auto check = [&](auto hash) {
        hash.add(message.constData(), 70);
        std::string const early = hash.getHash();
        QCOMPARE(hash.getHash(), early);
        QCOMPARE(QByteArray::fromStdString(early), hexOf(algorithm, {message.left(70)}));
        hash.add(message.constData() + 70, 80);
        QCOMPARE(QByteArray::fromStdString(hash.getHash()), hexOf(algorithm, {message}));
        hash.reset();
        QCOMPARE(QByteArray::fromStdString(hash.getHash()), hexOf(algorithm, {}));
    };
    if (algorithm == QLatin1String("SHA-1"))
        check(SHA1());
    else
        check(SHA256());
}

void tst_Sha::compressionEnginesAgree_data()
{
    QTest::addColumn<int>("blocks");
    QTest::newRow("one block") << 1;
    QTest::newRow("two blocks") << 2;
    QTest::newRow("seventeen blocks") << 17;
}

void tst_Sha::compressionEnginesAgree()
{
    QFETCH(int, blocks);
    if (!LibControl::detail::shaExtensionsAvailable())
        QSKIP("this processor has no SHA instructions");

    // Arbitrary states, not just the initial values, and unaligned input.
    QByteArray const input = pseudoRandomBytes(64 * blocks + 1, unsigned(blocks));
    auto const *data = reinterpret_cast<unsigned char const *>(input.constData()) + 1;
    std::mt19937 generator(42);
    uint32_t portable[8], x86[8];
    for (int i = 0; i < 8; ++i)
        portable[i] = x86[i] = uint32_t(generator());

    LibControl::detail::sha1CompressPortable(portable, data, size_t(blocks));
    LibControl::detail::sha1CompressX86(x86, data, size_t(blocks));
    QCOMPARE(QByteArray(reinterpret_cast<char *>(x86), 20), QByteArray(reinterpret_cast<char *>(portable), 20));

    LibControl::detail::sha256CompressPortable(portable, data, size_t(blocks));
    LibControl::detail::sha256CompressX86(x86, data, size_t(blocks));
    QCOMPARE(QByteArray(reinterpret_cast<char *>(x86), 32), QByteArray(reinterpret_cast<char *>(portable), 32));
}

void tst_Sha::unavailableEngineIsRefused()
{
    QVERIFY(useEngine(ShaEngine::Portable));
    QCOMPARE(LibControl::detail::activeShaEngine(), ShaEngine::Portable);
    bool const available = LibControl::detail::shaExtensionsAvailable();
    QCOMPARE(useEngine(ShaEngine::X86ShaExtensions), available);
    QCOMPARE(LibControl::detail::activeShaEngine(), available ? ShaEngine::X86ShaExtensions : ShaEngine::Portable);
}

QTEST_GUILESS_MAIN(tst_Sha)
#include "tst_sha.moc"
