#include <MaltoConfiguration/store/ConfStorage.h>

#include <MaltoConfiguration/store/ConfLoadReport.h>

ConfLoadReport ConfStorage::lastLoad() const
{
    return mLastLoad ? *mLastLoad : ConfLoadReport();
}
