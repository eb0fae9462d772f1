#pragma once

namespace quirn {

// PLACEHOLDERS: whoever publishes QUIRN sets these two. Hosts and paths without a scheme; the shell knows by the "www."
// that they are addresses.
inline constexpr char kQuirnWebSite[] = "www.quirn.example/";
inline constexpr char kGameWebSite[] = "www.subspace.example/";

}  // namespace quirn
