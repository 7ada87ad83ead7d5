#include "app/manifest.h"

#include <gtest/gtest.h>

namespace app {
namespace {

TEST(Manifest, TwentyOneLinesJoinedByCrLfWithoutAFinalBreak) {
    const std::string expected =
        "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n"
        "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\r\n"
        "<assemblyIdentity\r\n"
        "  name=\"veskar_lookout.exe\"\r\n"
        "  processorArchitecture=\"x86\"\r\n"
        "  version=\"1.0.0.0\"\r\n"
        "  type=\"win32\"/>\r\n"
        "<description>notes</description>\r\n"
        "<dependency>\r\n"
        "  <dependentAssembly>\r\n"
        "    <assemblyIdentity\r\n"
        "      type=\"win32\"\r\n"
        "      name=\"Microsoft.Windows.Common-Controls\"\r\n"
        "      version=\"6.0.0.0\"\r\n"
        "      processorArchitecture=\"x86\"\r\n"
        "      publicKeyToken=\"6595b64144ccf1df\"\r\n"
        "      language=\"*\"\r\n"
        "    />\r\n"
        "  </dependentAssembly>\r\n"
        "</dependency>\r\n"
        "</assembly>";
    EXPECT_EQ(ManifestText("veskar_lookout.exe", "notes", "x86"), expected);
}

TEST(Manifest, TheBuildNamesItsOwnArchitectureInBothPlaces) {
    const std::string text = ManifestText("a.exe", "");
    const std::string attribute = std::string("processorArchitecture=\"") + kManifestArchitecture + "\"";
    const auto first = text.find(attribute);
    ASSERT_NE(first, std::string::npos);
    EXPECT_NE(text.find(attribute, first + 1), std::string::npos);
    EXPECT_NE(text.find("<description></description>"), std::string::npos);
}

}  // namespace
}  // namespace app
