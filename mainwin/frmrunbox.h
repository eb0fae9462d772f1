#pragma once

#include "platform/form.h"

namespace quirn {

// The small window that is up while the game starts: the product's name with running colours.
class frmRunBox : public Form {
public:
    frmRunBox();

    // A launch begins: not done, and not to be closed.
    void Begin();

    // True once the close timer has run out or the player has closed the box. It need not be shown for that.
    bool RunDone() const { return runDone_; }

    // Lets the box go after the given time.
    void CloseAfter(int milliseconds);

private:
    void Form_Load();
    bool Form_Unload();
    void Timer1_Timer();
    void Timer2_Timer();

    Label Label1, Label5, Label2, Label3, Label4;
    Timer Timer1;  // closes the box
    Timer Timer2;  // moves the colours on
    int colorCounter_ = 0;
    bool runDone_ = false;
};

}  // namespace quirn
