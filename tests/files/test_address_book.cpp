// The address book of web pages: its file, its panel.
#include "tests/files/practice.h"

namespace navarun::test {

namespace {

class AddressBook : public testing::Test {
  protected:
    std::vector<std::string> addresses() { return visit.list("List_Internet"); }
    void write_book(std::string_view bytes) { put_file(visit.address_book(), bytes); }
    void add(std::string_view address) {
        visit.set("Text_New_URL", address);
        visit.click("Command_Disk_Vert");
    }
    Practice visit;
};

TEST_F(AddressBook, AFirstStartCreatesExactlyTenLines) {
    std::string const bytes = file_content(visit.address_book());
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 10);
    EXPECT_TRUE(bytes.starts_with("\"www.navarun.example\"\r\n\"fr.wikipedia.org\"\r\n"));
    EXPECT_TRUE(bytes.ends_with("\"www.geneanet.org\"\r\n"));
    EXPECT_EQ(visit.text("chemin_fichier"), "RESSOURCES/INTERNET.DAT");
}

TEST_F(AddressBook, IsReadFreshAtEachOpening) {
    write_book("\"b.example\"\r\n\"A.example\"\r\n");
    visit.click("Bouton_Internet");
    EXPECT_EQ(addresses(), (std::vector<std::string>{"b.example", "A.example"}));
    EXPECT_TRUE(visit.truth("Frame_Internet.Visible"));
    visit.click("Bouton_Internet");
    EXPECT_FALSE(visit.truth("Frame_Internet.Visible"));
    EXPECT_TRUE(addresses().empty());
    write_book("\"c.example\"\r\n");
    visit.click("Bouton_Internet");
    EXPECT_EQ(addresses(), std::vector<std::string>{"c.example"});
}

TEST_F(AddressBook, OpeningGivesTheResetButtonItsRoleAndClosingTakesItBack) {
    visit.click("Bouton_Internet");
    EXPECT_EQ(visit.text("Command_reset.Picture"), "Image_Web_Efface");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Supprime l'URL sélectionnée");
    EXPECT_EQ(visit.number("List_Internet.ListIndex"), -1);
    EXPECT_EQ(visit.text("Text_New_URL.Text"), "www.");
    EXPECT_EQ(visit.program().screen.focus(), &visit.program().form1.Text_New_URL);
    visit.click("Bouton_Internet");
    EXPECT_EQ(visit.text("Command_reset.Picture"), "reset_efface(0)");
    EXPECT_EQ(visit.text("Command_reset.ToolTipText"), "Initialise");
}

TEST_F(AddressBook, TheDisketteAddsTheTypedAddress) {
    visit.click("Bouton_Internet");
    visit.effects();
    add("www.zoé.example");
    EXPECT_TRUE(visit.effects().empty());
    EXPECT_EQ(addresses().size(), 11U);
    EXPECT_EQ(addresses().back(), "www.zoé.example");
    EXPECT_EQ(visit.text("Text_New_URL.Text"), "www.");
    EXPECT_TRUE(file_content(visit.address_book())
                    .ends_with("\"www.geneanet.org\"\r\n\"www.zo\xE9.example\"\r\n"));
    EXPECT_TRUE(names_in(visit.data(1)).empty());
}

TEST_F(AddressBook, AKeyTurnsTheDisketteRedAndTheSaveLeavesItSo) {
    visit.click("Bouton_Internet");
    EXPECT_EQ(visit.diskette(), "Diskette(0)");
    visit.type("Text_New_URL", "a");
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
    visit.click("Command_Disk_Vert");
    EXPECT_EQ(visit.diskette(), "Diskette(1)");
}

TEST_F(AddressBook, AddThenDeleteLeavesTheFileAsItWas) {
    std::string const before = file_content(visit.address_book());
    visit.click("Bouton_Internet");
    add("www.essai.example");
    visit.choose("List_Internet", "www.essai.example");
    visit.click("Command_reset");
    EXPECT_EQ(file_content(visit.address_book()), before);
}

TEST_F(AddressBook, DeletingAsksInCapitals) {
    visit.click("Bouton_Internet");
    visit.choose("List_Internet", "fr.wikipedia.org");
    EXPECT_EQ(visit.text("List_Internet.ToolTipText"), "fr.wikipedia.org");
    visit.effects();
    visit.click("Command_reset");
    EXPECT_EQ(visit.effects(),
              Json::array({box("EFFACER", "VOULEZ-VOUS EFFACER: \r\nFR.WIKIPEDIA.ORG ?", 1)}));
    EXPECT_EQ(addresses().size(), 9U);
    EXPECT_EQ(visit.number("List_Internet.ListIndex"), -1);
    EXPECT_EQ(visit.text("List_Internet.ToolTipText"), "");
    EXPECT_EQ(file_content(visit.address_book()).find("wikipedia"), std::string::npos);
    EXPECT_EQ(visit.text("Command_reset.Picture"), "Image_Web_Efface");
    EXPECT_EQ(visit.text("date_naissance"), "01/01/1900");
}

TEST_F(AddressBook, ADeclinedDeletionChangesNothing) {
    std::string const before = file_content(visit.address_book());
    visit.click("Bouton_Internet");
    visit.choose("List_Internet", "fr.wikipedia.org");
    visit.answer_next_box(2);
    visit.click("Command_reset");
    EXPECT_EQ(addresses().size(), 10U);
    EXPECT_EQ(file_content(visit.address_book()), before);
    EXPECT_EQ(visit.text("fichier_selectionne"), "fr.wikipedia.org");
}

TEST_F(AddressBook, DeletingWithoutASelectionSaysSo) {
    visit.click("Bouton_Internet");
    visit.effects();
    visit.click("Command_reset");
    EXPECT_EQ(visit.effects(),
              Json::array({message("Veuillez sélectionnez une adresse à effacer !", 2.3)}));
    EXPECT_EQ(addresses().size(), 10U);
    EXPECT_FALSE(visit.truth("frame_messageSauve.Visible"));
}

TEST_F(AddressBook, OfTwoEqualAddressesTheSelectedOneGoes) {
    write_book("\"a\"\r\n\"b\"\r\n\"a\"\r\n");
    visit.click("Bouton_Internet");
    visit.ask({{"op", "choose"}, {"control", "List_Internet"}, {"index", 2}});
    visit.click("Command_reset");
    EXPECT_EQ(file_content(visit.address_book()), "\"a\"\r\n\"b\"\r\n");
}

TEST_F(AddressBook, TheLastAddressCanGo) {
    write_book("\"a\"\r\n");
    visit.click("Bouton_Internet");
    visit.choose("List_Internet", "a");
    visit.click("Command_reset");
    EXPECT_EQ(file_content(visit.address_book()), "");
    visit.click("Bouton_Internet");
    visit.click("Bouton_Internet");
    EXPECT_TRUE(addresses().empty());
}

TEST_F(AddressBook, ADoubleClickOpensTheAddress) {
    visit.click("Bouton_Internet");
    visit.choose("List_Internet", "gallica.bnf.fr");
    visit.effects();
    visit.double_click("List_Internet");
    EXPECT_EQ(visit.effects(), (Json{{{"kind", "open"}, {"target", "gallica.bnf.fr"}}}));
    EXPECT_TRUE(visit.truth("Frame_Internet.Visible"));
}

// No shell stands in between: what an address holds is handed over as it is.
TEST_F(AddressBook, AnAddressThatLooksLikeACommandIsHandedOverAsItStands) {
    write_book("\"a; rm -rf $HOME `b` && c\"\r\n");
    visit.click("Bouton_Internet");
    visit.ask({{"op", "choose"}, {"control", "List_Internet"}, {"index", 0}});
    visit.effects();
    visit.double_click("List_Internet");
    EXPECT_EQ(visit.effects(),
              (Json{{{"kind", "open"}, {"target", "a; rm -rf $HOME `b` && c"}}}));
}

TEST_F(AddressBook, ADoubleClickWithoutASelectionHandsOverAnEmptyAddress) {
    visit.click("Bouton_Internet");
    visit.effects();
    visit.double_click("List_Internet");
    EXPECT_EQ(visit.effects(), (Json{{{"kind", "open"}, {"target", ""}}}));
}

TEST_F(AddressBook, MissingAtTheOpeningEndsTheRun) {
    std::filesystem::remove(visit.address_book());
    auto const answer = visit.fatal_click("Bouton_Internet");
    EXPECT_NE(report_of(answer).find("INTERNET.DAT"), std::string::npos) << answer;
    EXPECT_FALSE(std::filesystem::exists(visit.address_book()));
}

TEST_F(AddressBook, AnAddressOf10000CharactersIsKept) {
    std::string const address = "www." + std::string(9996, 'a');
    visit.click("Bouton_Internet");
    add(address);
    EXPECT_TRUE(file_content(visit.address_book()).ends_with("\"" + address + "\"\r\n"));
    visit.click("Bouton_Internet");
    visit.click("Bouton_Internet");
    EXPECT_EQ(addresses().back(), address);
    visit.choose("List_Internet", address);
    visit.double_click("List_Internet");
    EXPECT_EQ(visit.effects().back(), (Json{{"kind", "open"}, {"target", address}}));
}

TEST_F(AddressBook, ACommaIsPartOfAnAddress) {
    visit.click("Bouton_Internet");
    add("www.a.example/b,c");
    visit.click("Bouton_Internet");
    visit.click("Bouton_Internet");
    EXPECT_EQ(addresses().back(), "www.a.example/b,c");
}

// The quote ends the line early; what stood after it is a line of its own, not lost.
TEST_F(AddressBook, AQuoteBreaksTheLineOnTheNextReading) {
    visit.click("Bouton_Internet");
    add("www.a\"b.example");
    EXPECT_TRUE(file_content(visit.address_book()).ends_with("\"www.a\"b.example\"\r\n"));
    visit.click("Bouton_Internet");
    visit.click("Bouton_Internet");
    ASSERT_EQ(addresses().size(), 12U);
    EXPECT_EQ(addresses()[10], "www.a");
    EXPECT_EQ(addresses()[11], "b.example\"");
}

TEST_F(AddressBook, ATextWithoutItsClosingQuoteEndsTheRunAndKeepsTheFile) {
    write_book("\"a\"\r\n\"b");
    visit.fatal_click("Bouton_Internet");
    EXPECT_EQ(file_content(visit.address_book()), "\"a\"\r\n\"b");
}

TEST_F(AddressBook, OpeningHidesNothingOfTheRecordsPanel) {
    visit.click("Bouton_Internet");
    visit.click("Charge(1)");
    EXPECT_FALSE(visit.truth("Frame_Internet.Visible"));
    EXPECT_TRUE(visit.truth("Frame_FileFichier.Visible"));
}

}  // namespace

}  // namespace navarun::test
