#include "auxiliary/frmabout.h"
#include "auxiliary/frmsplash.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

namespace quirn::test {
namespace {

struct ShownAbout : frmAbout {
    ShownAbout() { Show(); }
};

class AboutTest : public WorldTest {
protected:
    bool SecretShows() { return LabelOf(form, "secret cookie").Visible(); }

    ShownAbout form;
    Label& quote = LabelOf(form, "A profile is a promise");
    Picture& picture = ControlOf<Picture>(form, "", 1);
};

TEST_F(AboutTest, TheWordShowsTheSecretAndItsButtonCloses) {
    Type(form, "sszante");  // on a button, and one of them has the access key S
    EXPECT_FALSE(SecretShows());
    Type(form, std::string(47, 'q') + "zanqtek");  // only the last six count
    EXPECT_FALSE(SecretShows());
    Type(form, std::string(49, '!') + "xZANzantEK");
    EXPECT_TRUE(SecretShows());
    EXPECT_FALSE(quote.Visible());
    EXPECT_EQ(picture.Place().top, 100);
    EXPECT_EQ(LabelOf(form, "secret cookie").Place().top, 350);
    EXPECT_TRUE(LabelOf(form, "secret cookie").Text().starts_with("Hey! You found the secret cookie!"));
    Click(ButtonOf(form, "horrible excuse"));
    EXPECT_FALSE(form.IsLoaded());
    form.Show();
    Press(form, kKeyEscape);
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(AboutTest, AKeyClosesTheSplash) {
    frmSplash splash;
    splash.Show();
    Type(splash, "x");
    EXPECT_FALSE(splash.IsLoaded());
}

}  // namespace
}  // namespace quirn::test
