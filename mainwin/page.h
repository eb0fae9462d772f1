#pragma once

#include <deque>
#include <functional>

#include "platform/controls.h"
#include "platform/measures.h"

// What the pages of the main window have in common. Each page is a class with its controls as members, in creation
// order, which is the tab order; its layout is a table at the top of its .cpp, in twips inside the page.
namespace quirn {

// Called when the player has changed something that belongs to the profile, by whatever control: an edit that nobody
// marks would be lost without a question.
using Edited = std::function<void()>;

// Several controls of one kind, addressed by index from 0. They never move once created.
template <class T>
using ControlArray = std::deque<T>;

}  // namespace quirn
