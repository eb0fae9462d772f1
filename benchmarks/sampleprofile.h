#pragma once

#include <string>

#include "profile/profile.h"

namespace quirn {

// A full profile as a busy player has it.
inline Profile SampleProfile() {
    Profile profile;
    InitCatalogue(profile);
    for (Section* section : profile.Sections())
        for (int i = 1; i <= section->Count(); ++i)
            section->Value(i) = section->IsNumber(i) ? std::to_string(i * 7 % 100) : "text number " + std::to_string(i);
    for (int i = 0; i < 20; ++i) profile.IgnoreList.push_back("Player " + std::to_string(i));
    return profile;
}

}  // namespace quirn
