#pragma once

#include <string>

#include "platform/form.h"
#include "platform/table.h"

// A window that opens where the player left it, with the columns as wide as they were.
namespace quirn {

// name: what the keys in the program's settings begin with. Without such keys all stays as it is.
void RestorePlace(Form& form, Table& table, const std::string& name);
void StorePlace(const Form& form, const Table& table, const std::string& name);

}  // namespace quirn
