#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "mainwin/frmmain.h"
#include "platform/headless/dialogs.h"

// A player who presses anything, on the in-memory back end: one run of the program from start to end, in a world with
// everything that it may meet. What he does follows from a seed, and after each action he looks whether what must hold
// still does.
namespace quirn::test {

// Numbers that follow from a seed.
class Random {
public:
    explicit Random(uint64_t seed) : state_(seed) {}

    uint64_t Next();
    size_t Below(size_t count) { return static_cast<size_t>(Next() % count); }
    bool OneIn(size_t count) { return Below(count) == 0; }
    template <class List>
    auto& From(List& list) {
        return list[Below(std::size(list))];
    }

private:
    uint64_t state_;
};

class Player {
public:
    // steps: which of the actions of this seed he does. Each draws its own numbers, so that leaving some out changes
    // the others little.
    Player(uint64_t seed, std::vector<unsigned> steps, bool tells);
    ~Player();

    void Play();  // the whole run; ends the process when something does not hold

private:
    // What an action may bring about, until it has ended with all that happened inside it.
    struct Allowed {
        enum What { Edit, Save, Transfer, Load, Library } what;
        std::string path;
    };
    struct OpenDialog {
        headless::Dialog* dialog;
        bool answered;
    };

    void MakeWorld();
    int Act();
    int Leave();  // closes what is open and ends the program
    void WaitForAnswer(headless::Dialog& dialog);

    // The actions.
    int DoSomething();
    void AnswerDialog();
    void UseForm(Form& form);
    void UseControl(Control& control);
    void UseList(VirtualList& list);
    void UseTable(Table& table);
    void UseWindow(Form& form);
    void Drop(Form& form);
    std::vector<std::string> SomeFiles();
    void PressKey(Form& form);
    void PressAccessKey(Form& form);
    void ChooseFromMenu(Form& form, Menu& menu);
    void UseTray();
    void EndSession();
    void StartSecondCopy();
    void ChangeWorld();

    // What must hold.
    void Check();
    void CheckStored();
    void CheckWindows();
    void CheckRecord();
    void CheckDirty();
    void CheckEnd();
    bool IsAllowed(Allowed::What what) const;
    bool MayChange(const std::string& path) const;
    std::map<std::string, std::string> Stored() const;  // files and the game's keys
    std::vector<std::string> Shown();                   // the profile as the window has it

    frmMain* MainWindow() const;  // once it is loaded
    std::vector<Form*> UsableForms() const;
    void Allow(Allowed::What what, const std::string& path = {});
    void AllowClickOn(const Control* control);
    void Tell(const std::string& text) const;
    [[noreturn]] void Fail(const std::string& what) const;

    uint64_t seed_;
    std::vector<unsigned> steps_;
    bool tells_;
    Random random_;
    Program program_;
    size_t next_ = 0;
    int leaving_ = 0;
    int depth_ = 0;  // of actions inside of actions
    std::vector<OpenDialog> dialogs_;
    std::vector<Allowed> allowed_;
    std::map<std::string, std::string> stored_;
    std::vector<std::string> record_;  // the profile behind the window, but for its macros
    bool wasDirty_ = true;             // nothing is known before the first look
    std::vector<std::string> clean_;   // what the window showed when it was loaded or saved
};

}  // namespace quirn::test
