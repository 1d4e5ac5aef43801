#pragma once

/// Hears when other programs change the local file.
class FileWatch
{
};
