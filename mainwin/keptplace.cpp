#include "mainwin/keptplace.h"

#include <algorithm>

#include "platform/settings.h"

namespace quirn {

namespace {

constexpr int kLeastColumn = 300;
constexpr int kWidestColumn = 12000;

std::string ColumnKey(const std::string& name, size_t column) {
    return name + "Column" + std::to_string(column);
}

void Write(const std::string& key, int number) {
    SaveSetting(kSettings, key, std::to_string(number));
}

}  // namespace

void RestorePlace(Form& form, Table& table, const std::string& name) {
    Bounds place = form.Place();
    place.width = GetNumberSetting(kSettings, name + "Width", 0);
    place.height = GetNumberSetting(kSettings, name + "Height", 0);
    place.left = GetNumberSetting(kSettings, name + "Left", 0);
    place.top = GetNumberSetting(kSettings, name + "Top", 0);
    if (place.width > 0 && place.height > 0) form.Move(place);
    for (size_t i = 0; i < table.Columns().size(); ++i) {
        const int width = GetNumberSetting(kSettings, ColumnKey(name, i), table.Columns()[i].width);
        table.SetColumnWidth(static_cast<int>(i), std::clamp(width, kLeastColumn, kWidestColumn));
    }
}

void StorePlace(const Form& form, const Table& table, const std::string& name) {
    Write(name + "Left", form.NormalPlace().left);
    Write(name + "Top", form.NormalPlace().top);
    Write(name + "Width", form.NormalPlace().width);
    Write(name + "Height", form.NormalPlace().height);
    for (size_t i = 0; i < table.Columns().size(); ++i) Write(ColumnKey(name, i), table.Columns()[i].width);
}

}  // namespace quirn
