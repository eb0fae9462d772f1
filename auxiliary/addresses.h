#pragma once

namespace quirn {

// PLACEHOLDERS: whoever publishes QUIRN sets these two. Hosts and paths without a scheme.
inline constexpr char kQuirnWebSite[] = "quirn.example/";
inline constexpr char kGameWebSite[] = "subspace.example/";

}  // namespace quirn
