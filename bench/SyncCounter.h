#pragma once

// Counts the disk flushes (xSync calls) SQLite makes, by putting a thin
// layer over the default file system layer that forwards every call. A
// write SQLite skipped because the page came out the same shows as a
// missing flush. Install before the first connection opens.

#include <sqlite3.h>

namespace bench {

class SyncCounter
{
public:
    static void install()
    {
        static bool installed = false;
        if (installed)
            return;
        installed = true;
        sqlite3_initialize();
        s_real = sqlite3_vfs_find(nullptr);
        s_vfs = *s_real;
        s_vfs.zName = "bench-sync-counter";
        s_vfs.szOsFile = int(sizeof(File)) + s_real->szOsFile;
        s_vfs.xOpen = &open;
        sqlite3_vfs_register(&s_vfs, 1);
    }
    static long long syncs() { return s_syncs; }

private:
    struct File
    {
        sqlite3_file base;
        sqlite3_file *real;
    };

    static sqlite3_file *real(sqlite3_file *f) { return reinterpret_cast<File *>(f)->real; }

    static int open(sqlite3_vfs *, const char *name, sqlite3_file *f, int flags, int *outFlags)
    {
        auto *file = reinterpret_cast<File *>(f);
        file->real = reinterpret_cast<sqlite3_file *>(file + 1);
        const int rc = s_real->xOpen(s_real, name, file->real, flags, outFlags);
        file->base.pMethods = file->real->pMethods ? &s_methods : nullptr;
        return rc;
    }
    static int close(sqlite3_file *f) { return real(f)->pMethods->xClose(real(f)); }
    static int read(sqlite3_file *f, void *b, int n, sqlite3_int64 o)
    {
        return real(f)->pMethods->xRead(real(f), b, n, o);
    }
    static int write(sqlite3_file *f, const void *b, int n, sqlite3_int64 o)
    {
        return real(f)->pMethods->xWrite(real(f), b, n, o);
    }
    static int truncate(sqlite3_file *f, sqlite3_int64 size) { return real(f)->pMethods->xTruncate(real(f), size); }
    static int sync(sqlite3_file *f, int flags)
    {
        ++s_syncs;
        return real(f)->pMethods->xSync(real(f), flags);
    }
    static int fileSize(sqlite3_file *f, sqlite3_int64 *size) { return real(f)->pMethods->xFileSize(real(f), size); }
    static int lock(sqlite3_file *f, int level) { return real(f)->pMethods->xLock(real(f), level); }
    static int unlock(sqlite3_file *f, int level) { return real(f)->pMethods->xUnlock(real(f), level); }
    static int reserved(sqlite3_file *f, int *out) { return real(f)->pMethods->xCheckReservedLock(real(f), out); }
    static int control(sqlite3_file *f, int op, void *arg) { return real(f)->pMethods->xFileControl(real(f), op, arg); }
    static int sectorSize(sqlite3_file *f) { return real(f)->pMethods->xSectorSize(real(f)); }
    static int device(sqlite3_file *f) { return real(f)->pMethods->xDeviceCharacteristics(real(f)); }

    static inline sqlite3_vfs *s_real = nullptr;
    static inline sqlite3_vfs s_vfs{};
    static inline long long s_syncs = 0;
    // Version 1: the season runs in rollback-journal mode, without memory mapping.
    static inline const sqlite3_io_methods s_methods = {1,        &close,      &read,   &write,  &truncate,
                                                        &sync,    &fileSize,   &lock,   &unlock, &reserved,
                                                        &control, &sectorSize, &device, nullptr, nullptr,
                                                        nullptr,  nullptr,     nullptr, nullptr};
};

} // namespace bench
