#pragma once

/// The local file of a store that other programs change, too.
class FileSharing
{
};
