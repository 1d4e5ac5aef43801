#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/ConfChange.h>

#include <memory>

class ConfObservers;
class ConfStorage;

/// Makes everything that the store does during the lifetime of the object one operation: observers
/// get all changes with the same `ConfChange::operation`. Objects may be nested; the outermost one
/// counts. Without observers the object does nothing.
///
/// The cause is that of the changes that the store makes directly. What callbacks and observers
/// change in answer has its own cause.
///
/// @code
/// const ConfOperation operation(ConfStorage::instance(), ConfChange::Cause::Edited);
/// ConfStorage::instance()->set(key, value);
/// @endcode
///
/// @since 0.1
class MALTO_EXPORT ConfOperation
{
public:
    /// Begins an operation on `store`, whose changes have the causes of the functions that make
    /// them.
    explicit ConfOperation(ConfStorage *store);
    /// Begins an operation on `store`, whose changes have the cause `cause`.
    ConfOperation(ConfStorage *store, ConfChange::Cause cause);
    /// Ends the operation.
    ~ConfOperation();
    Q_DISABLE_COPY(ConfOperation)

private:
    std::shared_ptr<ConfObservers> mObservers; // null: nobody observes
};
