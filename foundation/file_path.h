// How the file helpers turn a wide path into the narrow one the file
// functions take: system code page, then lexical canonicalisation ("." and
// ".." folded, as the Windows path canonicaliser does, without touching the
// file system).
#pragma once

#include <string>

// Empty if the path cannot be represented in the system code page.
std::string CanonicalNarrowPath(const std::wstring& path);
