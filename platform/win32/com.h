#pragma once

#include <windows.h>

#include <objbase.h>  // needs windows.h first

namespace quirn::win32 {

// Some of the shell's functions, and programs that it starts, need COM, which the shell leaves to its caller.
void InitCom();

// A reference that is given back.
template <class Interface>
class ComPtr {
public:
    ComPtr() = default;
    ~ComPtr() {
        if (object_ != nullptr) object_->Release();
    }
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;

    Interface* operator->() const { return object_; }
    void** Place() { return reinterpret_cast<void**>(&object_); }  // for a function that hands out a reference

private:
    Interface* object_ = nullptr;
};

}  // namespace quirn::win32
