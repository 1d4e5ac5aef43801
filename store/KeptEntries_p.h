#pragma once

/// The entries of a store whose keys are not declared, or whose values were refused. They are
/// written back to the local file.
class KeptEntries
{
};
