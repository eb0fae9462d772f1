#include "auxiliary/frmabout.h"
#include "auxiliary/frmsplash.h"
#include "auxiliary/quotes.h"
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
    Picture& picture = ControlOf<Picture>(form, ControlKind::Picture, "", 1);
};

// As a quote in the label: each "\r" as a line break.
std::string Shown(size_t index) {
    std::string lines;
    for (const char* c = kQuotes[index]; *c != '\0'; ++c)
        lines += *c == '\r' ? std::string("\r\n") : std::string(1, *c);
    return lines;
}

TEST_F(AboutTest, ClicksOnQuoteAndPictureGoThroughAllQuotesAndRound) {
    EXPECT_EQ(form.Caption(), "About QUIRN");
    EXPECT_EQ(LabelOf(form, "Version").Text(), "Version 1.61");
    for (size_t i = 1; i <= kQuotes.size(); ++i) {
        if (i % 2 == 0) Click(quote);
        else Click(picture);
        ASSERT_EQ(ShownText(quote), Shown(i % kQuotes.size())) << i;
    }
    EXPECT_NE(Shown(0).find("\r\n"), std::string::npos);
    EXPECT_NE(Shown(34).find("picture"), std::string::npos);
}

TEST_F(AboutTest, TheWordShowsTheSecretAndItsButtonCloses) {
    Type(form, "sszante");  // on a button, and one of them has the access key S
    EXPECT_FALSE(SecretShows());
    Type(form, "xZANzantEK");
    EXPECT_TRUE(SecretShows());
    EXPECT_FALSE(quote.Visible());
    EXPECT_EQ(picture.Place().top, 100);
    EXPECT_EQ(LabelOf(form, "secret cookie").Place().top, 350);
    EXPECT_TRUE(LabelOf(form, "secret cookie").Text().starts_with("Hey! You found the secret cookie!"));
    Click(ButtonOf(form, "horrible excuse"));
    EXPECT_FALSE(form.IsLoaded());
    form.Show();
    Click(ButtonOf(form, "OK"));
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(AboutTest, OnlyTheLastSixCharactersCountHoweverManyCameBefore) {
    Type(form, std::string(47, 'q') + "zanqtek");
    EXPECT_FALSE(SecretShows());
    Type(form, std::string(49, '!') + "Zantek");
    EXPECT_TRUE(SecretShows());
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
