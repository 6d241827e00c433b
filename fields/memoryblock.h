#ifndef LIBCONTROL_FIELDS_MEMORYBLOCK_H
#define LIBCONTROL_FIELDS_MEMORYBLOCK_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <QByteArray>

#include <cstdio>
#include <memory>

class MyDataStream;

/**
 * The library's growable byte buffer: CRA data-transfer records (T1013),
 * barcode items, whole files and resources, written to an archive in the
 * length-prefixed layouts of the return file, the T1 barcode and T1013.
 *
 * A new block allocates AllocationStep bytes at once and grows in steps of
 * that size. One spare byte always lies beyond the capacity, because the
 * size may reach capacity + 1 before the block grows.
 */
class LIBCONTROL_EXPORT CMemoryBlock
{
public:
    /** The size of the first allocation and of every growth step. */
    static constexpr int AllocationStep = 819600;
    /** What LoadFile returns for a path that cannot be opened. */
    static constexpr int LoadFileError = 107;

    /** Capacity AllocationStep, size 0. */
    CMemoryBlock();
    virtual ~CMemoryBlock();
    CMemoryBlock(CMemoryBlock const &) = delete;
    CMemoryBlock &operator=(CMemoryBlock const &) = delete;

    /**
     * Reads an int32 count n and then n raw bytes; returns the bytes read,
     * which become the content. A count below 1 gives an empty block and 0.
     * When n exceeds the capacity the array is replaced by one of exactly the
     * needed size; a count beyond what the device can still supply never
     * allocates more than is actually read.
     */
    virtual int ReadFromReturnArchive(MyDataStream &ar);
    /** Writes int32 size, then the content when size is at least 1. */
    virtual void WriteToReturnArchive(MyDataStream &ar);

    /** Empties the block; the allocation stays. */
    void Init();
    /**
     * Appends `n` bytes, growing by AllocationStep steps only once the new
     * size exceeds capacity + 1. A null `bytes` or `n` below 1 does nothing;
     * so does a growth the process cannot allocate.
     */
    void Append(char const *bytes, int n);
    /** Appends strlen(`text`) bytes, without the terminator; null does nothing. */
    void Append(char const *text);
    /**
     * Puts an uncounted zero byte after the content, so it reads as a C
     * string, when size is below the capacity; otherwise does nothing.
     */
    void AppendEnding0();

    /** Appends the record "ccc" + value + "*", the code right-aligned in 3 columns. */
    void AppendT1013Field(int code, CString &value);
    /** As above; `value` is read as Latin-1 (null counts as empty). */
    void AppendT1013Field(int code, char const *value);
    /** As above with the decimal text of `value`. */
    void AppendT1013Field(int code, int value);
    /** Appends "ccc" + value + "+" + recordNo + "*" for one member of a repeated group. */
    void AppendT1013FieldRecord(int code, int recordNo, CString &value);
    void AppendT1013FieldRecord(int code, int recordNo, int value);

    /** The number of bytes in use. */
    int GetContentSize() const;
    /** The bytes allocated (one spare byte lies beyond them). */
    int capacity() const { return m_capacity; }
    /**
     * Copies `n` bytes, or capacity - `offset` when `offset` + `n` exceeds
     * the capacity, into `dst` and returns that count (nothing below 1).
     * The bytes always come from the start of the block: `offset` only
     * shortens the count. Callers pass 0.
     */
    int GetContent(int offset, char *dst, int n) const;
    /** `out` = the content decoded with the local 8-bit codec; returns the size. */
    int GetContent(CString &out) const;
    /** The first content byte, or null when nothing could be allocated. */
    char const *constData() const { return m_data.get(); }
    /** The content as raw bytes (a copy). */
    QByteArray content() const;

    /** XORs the content with `key` repeated; a null key or length below 1 does nothing. */
    void XORWith(unsigned char const *key, int keyLength);
    /**
     * Searches the zero-terminated segments of the content from `position`.
     * Returns a pointer to the match or null. After a match `position` is
     * the match's offset + strlen(`needle`) + the offset of the segment it
     * was found in, which is just past the match only for the first
     * segment; repeated searches rely on this. After a segment without a
     * match `position` moves past its terminator. A negative `position` or
     * a null needle gives null. The bool is not used.
     */
    char const *SearchString(char const *needle, int &position, bool unused = false) const;
    /**
     * Appends the whole text of a file, or of a Qt resource for a path
     * starting with ":/", read with the default codec and stored as UTF-8.
     * Returns 0, or LoadFileError (107) when it cannot be opened, leaving the
     * block unchanged. The block is not cleared first.
     */
    int LoadFile(char const *path);
    /** Writes "\n--begin--\n", the content and "\n--end--\n", then flushes; null does nothing. */
    void dumpToLogfile(FILE *stream) const;

    /** The content raw when size is at least 1, without a count. */
    void WriteContentToArchive(MyDataStream &ar) const;
    /** int32 size, then the content raw. */
    void WriteToT1013Archive(MyDataStream &ar) const;
    /**
     * int32 L = size + 4, then L as four ASCII digits ("%04d") and the
     * content. A block of more than MaxBarcodeContent bytes cannot carry a
     * four-digit prefix: nothing is written and false is returned.
     */
    bool WriteToT1BarcodeArchive(MyDataStream &ar) const;
    /** The largest content WriteToT1BarcodeArchive accepts. */
    static constexpr int MaxBarcodeContent = 9995;

private:
    bool reserve(qint64 newSize);
    bool replaceArray(int capacity);

    std::unique_ptr<char[]> m_data;
    int m_capacity;
    int m_size;
};

/**
 * A memory block scrambled with a caller's key in the return archive.
 *
 * Writing scrambles the content in place before writing it, so the block
 * stays scrambled afterwards: the owner discards it after writing.
 */
class LIBCONTROL_EXPORT CT1EncryptedMemoryBlock : public CMemoryBlock
{
public:
    /** The key is the UTF-8 bytes of `key`; an empty key leaves the content plain. */
    explicit CT1EncryptedMemoryBlock(CString const &key);
    ~CT1EncryptedMemoryBlock() override;

    /** Reads as CMemoryBlock does, then unscrambles. */
    int ReadFromReturnArchive(MyDataStream &ar) override;
    /** Scrambles the content in place, then writes as CMemoryBlock does. */
    void WriteToReturnArchive(MyDataStream &ar) override;

private:
    void applyKey();

    QByteArray m_key;
};

#endif
