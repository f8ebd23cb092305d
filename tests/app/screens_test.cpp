#include "app/contact_us.h"
#include "app/pdf_view_controller.h"
#include "tests/support/recording_workspace.h"
#include "tests/support/temp_dir.h"
#include "ui/system_colors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ContactUs, OpensTheWebsiteAndAMailToSupportAlone) {
    RecordingWorkspace workspace;
    ContactUs contact(workspace, {"https://example.org/help", "help@example.org"});
    contact.viewDidLoad();
    EXPECT_EQ(contact.title(), "Technical Support");
    EXPECT_EQ(contact.view.backgroundColor(), systemColors::white);

    contact.openWebsite();
    contact.openMail();
    EXPECT_THAT(workspace.openedUrls, ElementsAre("https://example.org/help"));
    EXPECT_THAT(workspace.mails,
                ElementsAre(MailRequest{"help@example.org", "Technical Support", ""}));
}

TEST(ContactUs, TheMakersSupportIsWhatTheBuildConfigured) {
    const SupportContact maker = makerSupport();
    EXPECT_EQ(maker.websiteUrl.rfind("https://", 0), 0u);
    EXPECT_NE(maker.email.find('@'), std::string::npos);
}

class RecordingViewer final : public DocumentViewer {
public:
    void showDocument(const std::filesystem::path& file) override { shown.push_back(file); }
    std::vector<std::filesystem::path> shown;
};

TEST(PDFViewController, ShowsTheBundledTutorialOrNothing) {
    TempDir resources;
    RecordingViewer viewer;
    const Bundle bundle({resources.path()});
    PDFViewController withoutDocument(viewer, bundle);
    withoutDocument.viewDidLoad();
    EXPECT_EQ(withoutDocument.title(), "Tutorial.pdf");
    EXPECT_THAT(viewer.shown, IsEmpty());

    const auto tutorial = resources.write("Tutorial.pdf", "%PDF-1.4");
    PDFViewController withDocument(viewer, bundle);
    withDocument.viewDidLoad();
    EXPECT_THAT(viewer.shown, ElementsAre(tutorial));
}

} // namespace
} // namespace velmora::test
