#pragma once

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <new>
#include <sys/mman.h>

/// A value in memory that is shared with the forked processes, and survives them if they are
/// killed. Ends the process if there is no memory.
template<class T> class SharedMemory
{
public:
    SharedMemory()
    {
        void *memory = ::mmap(nullptr, sizeof(T), PROT_READ | PROT_WRITE,
                              MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) {
            std::perror("mmap");
            std::exit(2);
        }
        mValue = new (memory) T{};
    }
    ~SharedMemory()
    {
        mValue->~T();
        ::munmap(mValue, sizeof(T));
    }
    Q_DISABLE_COPY(SharedMemory)

    T *get() const { return mValue; }
    T *operator->() const { return mValue; }
    T &operator*() const { return *mValue; }

private:
    T *mValue;
};
