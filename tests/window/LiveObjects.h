#pragma once

#include <QAtomicInt>
#include <QMetaMethod>
#include <QObject>

#ifdef __GLIBC__
#include <malloc.h>
#endif

/// Qt's table of hooks for tools: the table's version and length, Qt's version, then the functions
/// that are called with every object that is created or destroyed.
extern Q_CORE_EXPORT quintptr qtHookData[];

/// Counts the objects that are created during its lifetime and not yet destroyed.
class LiveObjects
{
public:
    LiveObjects()
    {
        sCount = 0;
        qtHookData[AddHook] = reinterpret_cast<quintptr>(&add);
        qtHookData[RemoveHook] = reinterpret_cast<quintptr>(&remove);
    }
    ~LiveObjects()
    {
        qtHookData[AddHook] = 0;
        qtHookData[RemoveHook] = 0;
    }
    Q_DISABLE_COPY(LiveObjects)

    static int count() { return sCount; }

private:
    enum { AddHook = 3, RemoveHook = 4 };

    static void add(QObject *) { ++sCount; }
    static void remove(QObject *) { --sCount; }

    static inline QAtomicInt sCount{0};
};

/// Counts the receivers of all signals of an object.
class Receivers : public QObject
{
public:
    static int of(const QObject *object)
    {
        int count = 0;
        for (int i = 0; i < object->metaObject()->methodCount(); ++i) {
            const QMetaMethod method = object->metaObject()->method(i);
            if (method.methodType() == QMetaMethod::Signal)
                count += (object->*(&Receivers::receivers))('2' + method.methodSignature());
        }
        return count;
    }
};

/// Returns the number of bytes that the process has allocated, or 0 where this is unknown.
inline qint64 allocatedBytes()
{
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
#else
    return 0;
#endif
}
