#include "auxiliary/frmabout.h"
#include "auxiliary/frmrelnotes.h"
#include "auxiliary/quotes.h"
#include "platform/headless/headless.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// What the auxiliary windows ask of the system, and what comes by itself with the time.
namespace quirn::test {
namespace {

using headless::TheWorld;

class AuxiliaryTest : public WorldTest {};

TEST_F(AuxiliaryTest, TheQuoteChangesByItselfAndAClickStartsTheTimeAnew) {
    frmAbout form;
    form.Show();
    Label& quote = LabelOf(form, "A profile is a promise");
    const std::string first = quote.Text();
    WaitForEvents(6900);
    EXPECT_EQ(quote.Text(), first);
    WaitForEvents(200);
    const std::string second = quote.Text();
    EXPECT_NE(second, first);
    WaitForEvents(5000);
    Click(quote);
    const std::string third = quote.Text();
    EXPECT_NE(third, second);
    WaitForEvents(6900);
    EXPECT_EQ(quote.Text(), third);
    WaitForEvents(200);
    EXPECT_NE(quote.Text(), third);
    Type(form, "zantek");  // no quote comes any more
    const std::string last = quote.Text();
    WaitForEvents(20000);
    EXPECT_EQ(quote.Text(), last);
    Click(ControlOf<Picture>(form, "", 1));
    WaitForEvents(20000);
    EXPECT_EQ(quote.Text(), last);
}

TEST_F(AuxiliaryTest, ClicksGoThroughAllQuotesAndTheSoundComesWithOne) {
    frmAbout form;
    form.Show();
    Label& quote = LabelOf(form, "A profile is a promise");
    for (size_t i = 1; i < 2 * kQuotes.size(); ++i) {
        TheWorld().playedSounds.clear();
        if (i % 2 == 0) Click(quote);
        else Click(ControlOf<Picture>(form, "", 1));
        const std::string start = kQuotes[i % kQuotes.size()];
        EXPECT_EQ(quote.Text().substr(0, 6), start.substr(0, 6));
        const bool now = i % kQuotes.size() == 32;
        EXPECT_EQ(TheWorld().playedSounds,
                  now ? std::vector<std::string>{"C:\\Program\\thwfih.dll"} : std::vector<std::string>{})
            << i;
    }
}

TEST_F(AuxiliaryTest, TheSystemInformationIsFoundInTwoPlaces) {
    frmAbout form;
    form.Show();
    Button& button = ButtonOf(form, "Sys Info");
    ExpectMessage("System Information Is Unavailable At This Time");
    Click(button);
    MakeFolder("C:\\Tools");
    PutFile("C:\\Tools\\MSINFO32.EXE", "");
    PutFile("C:\\Windows\\info.exe", "");
    TheWorld().machineTexts["SOFTWARE\\Microsoft\\Shared Tools Location\\MSINFO"] = "C:\\Tools";
    Click(button);
    TheWorld().machineTexts["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO\\PATH"] = "C:\\Windows\\info.exe";
    Click(button);
    EXPECT_EQ(TheWorld().openedTargets, (std::vector<std::string>{"C:\\Tools\\MSINFO32.EXE", "C:\\Windows\\info.exe"}));
    TheWorld().machineTexts["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO\\PATH"] = "C:\\Windows\\gone.exe";
    ExpectMessage("System Information Is Unavailable At This Time");
    Click(button);
    TheWorld().machineTexts["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO\\PATH"] = "C:\\Windows\\info.exe";
    TheWorld().shellFailure = ErrorNumber::PermissionDenied;
    ExpectMessage("Unable to load 'C:\\Windows\\info.exe' : Permission denied", kExclamation);
    Click(button);
}

}  // namespace
}  // namespace quirn::test
