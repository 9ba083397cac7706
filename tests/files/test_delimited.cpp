// The one text format of the practice's files: what is written, and what is read back.
#include <ostream>
#include <random>

#include <gtest/gtest.h>

#include "core/code_page.h"
#include "core/fatal_error.h"
#include "files/delimited.h"
#include "files/record_format.h"

namespace navarun {

namespace {

DelimitedReader reader_of(std::string bytes) { return {std::move(bytes), "essai"}; }

TEST(DelimitedWriter, SeparatesFieldsByACommaAndClosesTheRecordByCrLf) {
    DelimitedWriter writer;
    writer.text("Zoë").number(0).truth(true).text("").end_record();
    EXPECT_EQ(writer.bytes(), "\"Zo\xEB\",0,#TRUE#,\"\"\r\n");
}

TEST(DelimitedWriter, BeginsEachRecordWithoutAComma) {
    DelimitedWriter writer;
    writer.number(3).end_record().number(0).number(9).end_record().truth(false).end_record();
    EXPECT_EQ(writer.bytes(), "3\r\n0,9\r\n#FALSE#\r\n");
}

TEST(DelimitedWriter, WritesNumbersInBareDigits) {
    DelimitedWriter writer;
    writer.number(0).number(9).number(255).number(1000000);
    EXPECT_EQ(writer.bytes(), "0,9,255,1000000");
}

TEST(DelimitedWriter, LeavesQuotesCommasAndLineBreaksOfATextAsTheyStand) {
    DelimitedWriter writer;
    writer.text("a\"b").text("c,d").text("e\r\nf").end_record();
    EXPECT_EQ(writer.bytes(), "\"a\"b\",\"c,d\",\"e\r\nf\"\r\n");
}

TEST(DelimitedWriter, WritesNothingForNoField) { EXPECT_EQ(DelimitedWriter{}.bytes(), ""); }

struct ReadCase {
    char const* name;
    char const* bytes;
    std::vector<std::string> values;
    friend std::ostream& operator<<(std::ostream& out, ReadCase const& row) {
        return out << row.name;
    }
};
ReadCase const read_cases[] = {
    {"closed_by_commas_and_a_line_end", "\"a\",\"b\"\r\n", {"a", "b"}},
    {"closed_by_line_ends_alone", "\"a\"\r\n\"b\"\r\n", {"a", "b"}},
    {"closed_by_the_end_of_the_file", "\"a\",b", {"a", "b"}},
    {"a_comma_inside_a_text", "\"a,b\",\"c\"\r\n", {"a,b", "c"}},
    {"a_line_break_inside_a_text", "\"a\r\nb\",\"c\"\r\n", {"a\r\nb", "c"}},
    {"an_empty_text", "\"\",\"\"\r\n", {"", ""}},
    {"blanks_inside_a_text_are_kept", "\"  a  \"\r\n", {"  a  "}},
    {"blanks_before_a_text_are_skipped", "  \"a\",  \"b\"\r\n", {"a", "b"}},
    {"blanks_before_a_bare_value", "   a\r\n", {"a"}},
    {"bare_numbers", "0,9\r\n", {"0", "9"}},
    {"truth_values_are_their_words", "#TRUE#,#FALSE#\r\n", {"#TRUE#", "#FALSE#"}},
    {"an_empty_bare_value", "a,,b\r\n", {"a", "", "b"}},
    {"a_lone_line_feed_closes", "a\nb\n", {"a", "b"}},
    {"a_lone_carriage_return_closes", "a\rb\r", {"a", "b"}},
    {"bytes_of_the_code_page", "\"\xC9\x9C\x80\"\r\n", {"\u00C9\u0153\u20AC"}},
};

class DelimitedReading : public testing::TestWithParam<ReadCase> {};
TEST_P(DelimitedReading, YieldsItsValues) {
    auto reader = reader_of(GetParam().bytes);
    std::vector<std::string> values;
    while (!reader.at_end()) values.push_back(reader.read_text());
    EXPECT_EQ(values, GetParam().values);
}
INSTANTIATE_TEST_SUITE_P(Table, DelimitedReading, testing::ValuesIn(read_cases),
                         [](auto const& row) { return row.param.name; });

TEST(DelimitedReader, PastTheEndIsAFatalError) {
    auto empty = reader_of("");
    EXPECT_TRUE(empty.at_end());
    EXPECT_THROW(empty.read_text(), FatalError);
    EXPECT_THROW(empty.read_byte(), FatalError);

    auto read_out = reader_of("\"a\"\r\n");
    EXPECT_EQ(read_out.read_text(), "a");
    EXPECT_TRUE(read_out.at_end());
    EXPECT_THROW(read_out.read_text(), FatalError);
}

TEST(DelimitedReader, ATextWithoutItsClosingQuoteIsAFatalError) {
    EXPECT_THROW(reader_of("\"").read_text(), FatalError);
    EXPECT_THROW(reader_of("\"abc\r\n").read_text(), FatalError);
}

TEST(DelimitedReader, NamesTheFileInItsReport) {
    try {
        DelimitedReader{"", "Dupont Zoé.fcy"}.read_text();
        FAIL();
    } catch (FatalError const& error) {
        EXPECT_NE(std::string{error.what()}.find("Dupont Zoé.fcy"), std::string::npos);
    }
}

// The quote is not escaped, so it ends the field; what follows is the next value, not lost.
TEST(DelimitedReader, AnInnerQuoteEndsTheFieldAndTheRestIsReadNext) {
    auto reader = reader_of("\"ab\"cd\"\r\n");
    EXPECT_EQ(reader.read_text(), "ab");
    EXPECT_FALSE(reader.at_end());
    EXPECT_EQ(reader.read_text(), "cd\"");
}

struct NumberCase {
    char const* name;
    char const* bytes;
    int number;  // -1: fatal
    friend std::ostream& operator<<(std::ostream& out, NumberCase const& row) {
        return out << row.name;
    }
};
constexpr NumberCase number_cases[] = {
    {"zero", "0\r\n", 0},
    {"nine", "9\r\n", 9},
    {"the_greatest_byte", "255\r\n", 255},
    {"one_too_many", "256\r\n", -1},
    {"three_hundred", "300\r\n", -1},
    {"beyond_any_number", "99999999999999999999\r\n", -1},
    {"below_zero", "-1\r\n", -1},
    {"a_letter", "x\r\n", -1},
    {"leading_blanks", "   7\r\n", 7},
    {"trailing_blanks", "7   \r\n", 7},
    {"leading_zeros", "007\r\n", 7},
    {"a_truth_value", "#TRUE#\r\n", -1},
    {"closed_by_the_file_end", "4", 4},
};

class DelimitedByte : public testing::TestWithParam<NumberCase> {};
TEST_P(DelimitedByte, IsReadOrEndsTheRun) {
    auto reader = reader_of(GetParam().bytes);
    if (GetParam().number < 0) {
        EXPECT_THROW(reader.read_byte(), FatalError);
    } else {
        EXPECT_EQ(reader.read_byte(), GetParam().number);
    }
}
INSTANTIATE_TEST_SUITE_P(Table, DelimitedByte, testing::ValuesIn(number_cases),
                         [](auto const& row) { return row.param.name; });

// Texts of any byte but the double quote.
class RandomTexts {
  public:
    explicit RandomTexts(unsigned seed) : m_random{seed} {}
    std::string text(int longest) {
        std::string bytes;
        int const length = below(longest + 1);
        for (int i = 0; i < length; ++i) {
            char byte = static_cast<char>(below(256));
            if (byte == '"') byte = '\'';
            bytes.push_back(byte);
        }
        return from_code_page(bytes);
    }
    int below(int bound) { return std::uniform_int_distribution{0, bound - 1}(m_random); }

  private:
    std::mt19937 m_random;
};

TEST(DelimitedFormat, EveryByteButTheQuoteSurvivesInAText) {
    for (int number = 0; number < 256; ++number) {
        if (number == '"') continue;
        std::string const byte(1, static_cast<char>(number));
        for (std::string const& bytes : {byte, byte + "x", "x" + byte, byte + byte}) {
            DelimitedWriter writer;
            writer.text(from_code_page(bytes)).text("suite").end_record();
            auto reader = reader_of(writer.bytes());
            EXPECT_EQ(to_code_page(reader.read_text()), bytes) << number;
            EXPECT_EQ(reader.read_text(), "suite") << number;
            EXPECT_TRUE(reader.at_end()) << number;
        }
    }
}

TEST(RecordFormat, RandomRecordsWithoutAQuoteComeBackEqual) {
    RandomTexts random{20260101};
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        std::vector<Record> written;
        for (int count = random.below(4); count >= 0; --count) {
            Record record;
            record.first_name = random.text(25);
            record.last_name = random.text(25);
            record.day = random.text(2);
            record.month = random.text(2);
            record.century = random.text(2);
            record.year = random.text(2);
            record.julian = static_cast<std::uint8_t>(random.below(256));
            record.portrait = random.text(40);
            record.note = random.text(400);
            bytes += record_bytes(record);
            written.push_back(record);
        }
        auto const read = read_records(bytes, "essai");
        ASSERT_EQ(read.size(), written.size());
        for (std::size_t i = 0; i < read.size(); ++i) {
            ASSERT_EQ(read[i].first_name, written[i].first_name);
            ASSERT_EQ(read[i].last_name, written[i].last_name);
            ASSERT_EQ(read[i].day, written[i].day);
            ASSERT_EQ(read[i].month, written[i].month);
            ASSERT_EQ(read[i].century, written[i].century);
            ASSERT_EQ(read[i].year, written[i].year);
            ASSERT_EQ(read[i].julian, written[i].julian);
            ASSERT_EQ(read[i].portrait, written[i].portrait);
            ASSERT_EQ(read[i].note, written[i].note);
        }
    }
}

TEST(RecordFormat, IsOneLineOfNineFields) {
    Record record;
    record.first_name = "Zoë";
    record.last_name = "Dupont, fille";
    record.day = "07";
    record.month = "03";
    record.century = "19";
    record.year = "52";
    record.portrait = "zoe.jpg";
    record.note = "une\r\ndeux";
    EXPECT_EQ(record_bytes(record),
              "\"Zo\xEB\",\"Dupont, fille\",\"07\",\"03\",\"19\",\"52\",0,\"zoe.jpg\","
              "\"une\r\ndeux\"\r\n");
}

TEST(RecordFormat, APortraitThatBecameATruthValueIsWrittenAsOneAndReadAsText) {
    Record record;
    record.portrait = true;
    EXPECT_EQ(record_bytes(record), "\"\",\"\",\"\",\"\",\"\",\"\",0,#TRUE#,\"\"\r\n");
    record.portrait = false;
    auto const read = read_records(record_bytes(record), "essai");
    ASSERT_EQ(read.size(), 1U);
    EXPECT_EQ(std::get<std::string>(read[0].portrait), "#FALSE#");
}

}  // namespace

}  // namespace navarun
