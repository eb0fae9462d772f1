#include "auxiliary/urllink.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

namespace quirn::test {
namespace {

struct LinkForm : Form {
    LinkForm() : Form(FormBorder::Dialog, 4000, 1500) {}
    URLLink link{*this, {100, 100, 2000, 210}};
    Label& label = LabelOf(*this, "");
};

class URLLinkTest : public WorldTest {
protected:
    LinkForm form;
};

TEST_F(URLLinkTest, PropertiesHaveDefaultsAndGoThroughABag) {
    EXPECT_EQ(form.link.Text(), "Example Home Page");
    EXPECT_FALSE(form.link.URL().empty() || form.link.ShowToolTip() || form.link.Changed());
    URLLink::PropertyBag bag{{"Text", "old"}, {"URL", "old"}, {"ShowToolTip", "-1"}};
    form.link.WriteProperties(bag);
    EXPECT_EQ(bag, URLLink::PropertyBag{}) << "defaults are not written";

    const std::string defaultURL = form.link.URL();
    form.link.SetText("Here");
    EXPECT_TRUE(form.link.Changed());
    form.link.SetURL("");
    form.link.SetShowToolTip(true);
    form.link.WriteProperties(bag);
    EXPECT_FALSE(form.link.Changed());
    EXPECT_EQ(bag, (URLLink::PropertyBag{{"Text", "Here"}, {"URL", ""}, {"ShowToolTip", "-1"}}));
    form.link.InitProperties();
    EXPECT_EQ(form.link.URL(), defaultURL);
    form.link.ReadProperties(bag);
    EXPECT_TRUE(form.link.Text() == "Here" && form.link.URL().empty() && form.link.ShowToolTip());
    form.Show();
    EXPECT_EQ(ShownText(form.label), "Here");
}

TEST_F(URLLinkTest, TheToolTipFollowsTheAddressWhileItIsSwitchedOn) {
    form.link.SetURL("C:\\notes.txt");
    EXPECT_EQ(form.label.ToolTip(), "");
    form.Show();
    form.link.SetShowToolTip(true);
    EXPECT_EQ(form.label.ToolTip(), "C:\\notes.txt");
    form.link.SetURL("C:\\other.txt");
    EXPECT_EQ(form.label.ToolTip(), "C:\\other.txt");
    form.link.SetShowToolTip(false);
    EXPECT_EQ(form.label.ToolTip(), "");
}

TEST_F(URLLinkTest, OnlyALeftClickOnAnAddressOpensItAndADoubleClickOnce) {
    const std::string missing = Scratch() + "\\missing.txt";
    form.link.SetURL(missing);
    form.Show();
    RightClick(form.label);  // a box that nobody expects would fail here
    form.link.SetURL("");
    Click(form.label);
    form.link.SetURL(missing);
    ExpectMessage("Unable to load '" + missing + "'", kExclamation);
    DoubleClick(form.label);
}

}  // namespace
}  // namespace quirn::test
