#pragma once

/// Saves the store when nothing has changed for a while, and when the application ends.
class Autosave
{
};
