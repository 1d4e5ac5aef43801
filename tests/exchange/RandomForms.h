#pragma once

#include "RandomFiles.h"

// A host with settings of types that are not built in, as in RandomFiles.h.

/// Returns the files of a host with random settings: "forms.json", the local file;
/// "formsInput.json", values as a user may write them; "formsRead.json", what a host saves that has
/// loaded them; "formsLog.txt".
Files writtenForms(quint64 seed);

/// Returns what a host writes that has read `files`, each into a new store.
Files rewrittenForms(const Files &files);
