#pragma once

#include <array>

namespace quirn {

// What the about box says, one after the other. "\r" breaks a line.
inline constexpr std::array<const char*, 35> kQuotes{{
    "A profile is a promise to your future self\rabout where the keys are.",
    "There are two kinds of pilots: those who save\rtheir settings, and those who will.",
    "Space is big.\rThe safe zone is not.",
    "Real pilots read the manual.\rAfterwards.",
    "\"It worked with my settings.\"\r    - every wingman, once",
    "Bounty is just applause\rwith a target painted on it.",
    "The bomb you see is not the bomb\rthat finds you.",
    "Lag is the universe giving you\rtime to think.",
    "Nobody ever lost a duel.\rThey were all testing something.",
    "Sixteen macros, and still\rnothing to say.",
    "Repel first. Apologise later.",
    "A clean ignore list is a sign\rof a forgiving heart.\rOr of a fresh install.",
    "The wormhole is not a shortcut.\rAsk anyone who came back.",
    "If at first you don't succeed,\rchange the resolution.",
    "Turrets are a friendship\rwith a weight limit.",
    "Flags do not carry themselves.\rThey only look as if they did.",
    "\"Just one more game\" is the longest\runit of time known to pilots.",
    "Stars are pretty.\rTurn them off if you want to win.",
    "My other ship is a Spectator.",
    "The gamma goes up to where you\rcan see them and they can't see you.\rIt does not.",
    "Prizes are random.\rComplaints about them are not.",
    "Check your energy before you\rcheck your ego.",
    "Multi-fire: for when you are wrong\rin several directions at once.",
    "Every zone has a corner.\rEvery corner has a mine.",
    "Teamwork is when someone else\rwas also pointing the wrong way.",
    "Backups are boring until\rthey are beautiful.",
    "The King of the hill is\rmostly worried about the hill.",
    "A decoy told me a joke.\rI shot it. It was not there.",
    "Chat is a weapon.\rPlease use the small calibre.",
    "I had the high score.\rThen I blinked.",
    "Shrapnel: the gift that\rkeeps on giving, to everyone.",
    "The best antiwarp is\rgood company.",
    "This one comes with music,\rif the file is there.",
    "Quotes end where quotes began.\rSo do most dogfights.",
    "In a hurry? Click the picture,\rand the quotes come faster.",
}};

inline constexpr char kSecretQuote[] =
    "Hey! You found the secret cookie!\r\rIt is a little stale. It has waited here since the\r"
    "first build for somebody who types at about boxes.\r\rFly well, curious pilot.";

}  // namespace quirn
