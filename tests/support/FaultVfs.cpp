#include "support/FaultVfs.h"

#include <new>

// https://www.sqlite.org/vfs.html and the comments of sqlite3.h on sqlite3_vfs and sqlite3_io_methods say
// what each of these functions has to do. Nothing that only releases (close, unlock, shared memory) fails.

namespace support {

namespace {

using Operation = FaultVfs::Operation;

// What SQLite hands around as a file: ours, with the real layer's file behind it.
struct FaultFile {
    sqlite3_file base;
    FaultVfs *layer;
    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

FaultFile *faultFile(sqlite3_file *file) {
    return reinterpret_cast<FaultFile *>(file);
}

sqlite3_file *realFile(sqlite3_file *file) {
    return faultFile(file)->real();
}

FaultVfs &layerOf(sqlite3_vfs *vfs) {
    return *static_cast<FaultVfs *>(vfs->pAppData);
}

bool fails(sqlite3_file *file, Operation operation) {
    return faultFile(file)->layer->fails(operation);
}

int errorOf(sqlite3_file *file, int ioError) {
    switch (faultFile(file)->layer->fault()) {
    case Fault::fullDisk: return SQLITE_FULL;
    case Fault::busy: return SQLITE_BUSY;
    case Fault::ioError: break;
    }
    return ioError;
}

int closeFile(sqlite3_file *file) {
    faultFile(file)->layer->closed();
    return realFile(file)->pMethods->xClose(realFile(file));
}

int readFile(sqlite3_file *file, void *bytes, int count, sqlite3_int64 offset) {
    if (fails(file, Operation::read))
        return errorOf(file, SQLITE_IOERR_READ);
    faultFile(file)->layer->countRead();
    return realFile(file)->pMethods->xRead(realFile(file), bytes, count, offset);
}

int writeFile(sqlite3_file *file, const void *bytes, int count, sqlite3_int64 offset) {
    bool fail = fails(file, Operation::write);
    int status = realFile(file)->pMethods->xWrite(realFile(file), bytes, fail ? count / 2 : count, offset);
    return fail ? errorOf(file, SQLITE_IOERR_WRITE) : status;
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size) {
    if (fails(file, Operation::truncate))
        return errorOf(file, SQLITE_IOERR_TRUNCATE);
    return realFile(file)->pMethods->xTruncate(realFile(file), size);
}

// A test does not outlive the power supply: nothing is forced to the real disk.
int syncFile(sqlite3_file *file, int) {
    return fails(file, Operation::sync) ? errorOf(file, SQLITE_IOERR_FSYNC) : SQLITE_OK;
}

int fileSize(sqlite3_file *file, sqlite3_int64 *size) {
    if (fails(file, Operation::fileSize))
        return errorOf(file, SQLITE_IOERR_FSTAT);
    return realFile(file)->pMethods->xFileSize(realFile(file), size);
}

int lockFile(sqlite3_file *file, int level) {
    if (fails(file, Operation::lock))
        return errorOf(file, SQLITE_IOERR_LOCK);
    return realFile(file)->pMethods->xLock(realFile(file), level);
}

int unlockFile(sqlite3_file *file, int level) {
    return realFile(file)->pMethods->xUnlock(realFile(file), level);
}

int checkReservedLock(sqlite3_file *file, int *isLocked) {
    if (fails(file, Operation::checkLock))
        return errorOf(file, SQLITE_IOERR_CHECKRESERVEDLOCK);
    return realFile(file)->pMethods->xCheckReservedLock(realFile(file), isLocked);
}

int fileControl(sqlite3_file *file, int operation, void *argument) {
    return realFile(file)->pMethods->xFileControl(realFile(file), operation, argument);
}

int sectorSize(sqlite3_file *file) {
    return realFile(file)->pMethods->xSectorSize(realFile(file));
}

int deviceCharacteristics(sqlite3_file *file) {
    return realFile(file)->pMethods->xDeviceCharacteristics(realFile(file));
}

int mapSharedMemory(sqlite3_file *file, int page, int size, int extend, void volatile **memory) {
    return realFile(file)->pMethods->xShmMap(realFile(file), page, size, extend, memory);
}

int lockSharedMemory(sqlite3_file *file, int offset, int count, int flags) {
    return realFile(file)->pMethods->xShmLock(realFile(file), offset, count, flags);
}

void sharedMemoryBarrier(sqlite3_file *file) {
    realFile(file)->pMethods->xShmBarrier(realFile(file));
}

int unmapSharedMemory(sqlite3_file *file, int remove) {
    return realFile(file)->pMethods->xShmUnmap(realFile(file), remove);
}

constexpr sqlite3_io_methods methods = {2,
                                        closeFile,
                                        readFile,
                                        writeFile,
                                        truncateFile,
                                        syncFile,
                                        fileSize,
                                        lockFile,
                                        unlockFile,
                                        checkReservedLock,
                                        fileControl,
                                        sectorSize,
                                        deviceCharacteristics,
                                        mapSharedMemory,
                                        lockSharedMemory,
                                        sharedMemoryBarrier,
                                        unmapSharedMemory,
                                        nullptr,
                                        nullptr};

int openFile(sqlite3_vfs *vfs, const char *name, sqlite3_file *file, int flags, int *outFlags) {
    FaultVfs &layer = layerOf(vfs);
    file->pMethods = nullptr;
    if (layer.fails(Operation::open, (flags & SQLITE_OPEN_CREATE) != 0))
        return SQLITE_CANTOPEN;
    auto *opened = new (file) FaultFile{{nullptr}, &layer};
    int status = layer.real()->xOpen(layer.real(), name, opened->real(), flags, outFlags);
    if (opened->real()->pMethods) {
        opened->base.pMethods = &methods;
        layer.opened((flags & SQLITE_OPEN_MAIN_DB) != 0);
    }
    return status;
}

int deleteFile(sqlite3_vfs *vfs, const char *name, int syncFolder) {
    FaultVfs &layer = layerOf(vfs);
    return layer.fails(Operation::remove) ? SQLITE_IOERR_DELETE
                                          : layer.real()->xDelete(layer.real(), name, syncFolder);
}

int accessFile(sqlite3_vfs *vfs, const char *name, int flags, int *result) {
    FaultVfs &layer = layerOf(vfs);
    return layer.fails(Operation::access) ? SQLITE_IOERR_ACCESS
                                          : layer.real()->xAccess(layer.real(), name, flags, result);
}

bool canFail(Fault fault, Operation operation, bool creates) {
    switch (fault) {
    case Fault::ioError: return true;
    case Fault::busy: return operation == Operation::lock;
    case Fault::fullDisk: break;
    }
    return operation == Operation::write || operation == Operation::truncate ||
           (operation == Operation::open && creates);
}

} // namespace

FaultVfs::FaultVfs() : m_real(sqlite3_vfs_find(nullptr)) {
    m_layer = *m_real;
    m_layer.zName = "fault";
    m_layer.pAppData = this;
    m_layer.szOsFile = static_cast<int>(sizeof(FaultFile)) + m_real->szOsFile;
    m_layer.xOpen = openFile;
    m_layer.xDelete = deleteFile;
    m_layer.xAccess = accessFile;
    sqlite3_vfs_register(&m_layer, 1);
}

FaultVfs::~FaultVfs() {
    sqlite3_vfs_unregister(&m_layer);
}

void FaultVfs::failOperation(int number, Fault fault, FaultSpan span) {
    heal();
    m_target = number;
    m_fault = fault;
    m_span = span;
}

void FaultVfs::heal() {
    m_target = m_count = m_databasesOpened = 0;
    m_reads = 0;
    m_failed = false;
}

bool FaultVfs::fails(Operation operation, bool creates) {
    if (m_target == 0 || !canFail(m_fault, operation, creates))
        return false;
    ++m_count;
    bool fail = m_span == FaultSpan::once ? m_count == m_target : m_count >= m_target;
    m_failed = m_failed || fail;
    return fail;
}

void FaultVfs::opened(bool isDatabase) {
    ++m_openFiles;
    m_databasesOpened += isDatabase ? 1 : 0;
}

} // namespace support
