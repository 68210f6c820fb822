#include "asn2stx/lexer.h"
#include <gtest/gtest.h>
#include <iterator>
#include <span>

// The tokens of a text as "kind text", separated by blanks; errors behind "#".
struct LexRun {
  AsnSource source;
  AsnErrors errors;

  explicit LexRun(const std::string &text)
  {
    source.text = text;
    errors.files = {"f"};
    asnLex(source, errors);
  }

  const Token &token(size_t i) const { return source.tokens.at(i); }

  std::string shown() const
  {
    static const char *const kinds[] = {
        "end",     "upper",   "lower",  "field", "number", "real", "bstring",
        "hstring", "cstring", "assign", "range", "dots",   "sign"};
    std::string text;
    for (const Token &token : source.tokens) {
      if (token.kind == TOK_END)
        break;
      if (!text.empty())
        text += " ";
      text +=
          std::string(kinds[token.kind]) + "<" + std::string(token.text) + ">";
    }
    for (const AsnError &error : errors.errors)
      text += "#" + std::to_string(error.pos.line) + ":" +
              std::to_string(error.pos.column) + " " + error.text;
    return text;
  }

  std::string noteText(size_t i) const
  {
    std::string text;
    for (const AsnAnnotation &word : source.notes.at(i).words)
      text += "(" + word.key + (word.hasValue ? "=" + word.value : "") + ")";
    return text;
  }
};

struct LexRow {
  const char *text;
  const char *tokens;
};

static void checkRows(std::span<const LexRow> rows)
{
  for (const LexRow &row : rows)
    EXPECT_EQ(LexRun(row.text).shown(), row.tokens) << row.text;
}

TEST(AsnLexer, Words)
{
  static const LexRow rows[] = {
      {"Foo bar", "upper<Foo> lower<bar>"},
      {"a-b A1-2", "lower<a-b> upper<A1-2>"},
      {"&id &Type", "field<id> field<Type>"},
      {"a- b", "lower<a> sign<-> lower<b>"},
      {"a--b", "lower<a>"},  // a comment begins behind "a"
      {"a_b", "lower<a_b>#1:2 \"_\" in a name"},
      {"5a", "number<5> lower<a>"},
      {"& a", "lower<a>#1:1 unexpected character \"&\""},
  };
  checkRows(rows);
}

TEST(AsnLexer, Numbers)
{
  static const LexRow rows[] = {
      {"0 17", "number<0> number<17>"},
      {"1..5", "number<1> range<..> number<5>"},
      {"1.5", "real<1.5>"},
      {"1. ", "real<1.>"},
      {"1.5..2.5", "real<1.5> range<..> real<2.5>"},
      {"12e3 1E-3 1.5e10", "real<12e3> real<1E-3> real<1.5e10>"},
      {"1e 1e-", "number<1> lower<e> number<1> lower<e> sign<->"},
      {"-5", "sign<-> number<5>"},
  };
  checkRows(rows);
}

TEST(AsnLexer, Signs)
{
  static const LexRow rows[] = {
      {"::= : . .. ...", "assign<::=> sign<:> sign<.> range<..> dots<...>"},
      {"{}()[],;<|^!@-*>/=",
       "sign<{> sign<}> sign<(> sign<)> sign<[> sign<]> sign<,> sign<;> "
       "sign<<> sign<|> sign<^> sign<!> sign<@> sign<-> sign<*> sign<>> "
       "sign</> sign<=>"},
      {"[[ ]]", "sign<[> sign<[> sign<]> sign<]>"},
      {"....", "dots<...> sign<.>"},
  };
  checkRows(rows);
}

TEST(AsnLexer, Strings)
{
  static const LexRow rows[] = {
      {"'0101'B '01AF'H ''B", "bstring<0101> hstring<01AF> bstring<>"},
      {"'01 \n10'B", "bstring<01 \n10>"},
      {"\"ab\" \"\"", "cstring<ab> cstring<>"},
      {"\"a\"\"b\"", "cstring<a\"\"b>"},
      {"\"a--b\"", "cstring<a--b>"},
      {"'012'B", "bstring<012>#1:1 \"2\" in a binary string"},
      {"'0af'H", "hstring<0af>#1:1 \"a\" in a hexadecimal string"},
      {"a '01'\nb", "lower<a> hstring<01> "
                    "lower<b>#1:3 expected \"B\" or \"H\" behind '01'"},
      {"a \"b c\nd", "lower<a> lower<d>#1:3 the string does not end"},
      {"a '01\nd", "lower<a> lower<d>#1:3 the string does not end"},
  };
  checkRows(rows);
}

TEST(AsnLexer, CharactersOfString)
{
  EXPECT_EQ(cstringText("abc"), "abc");
  EXPECT_EQ(cstringText("a\"\"b\"\""), "a\"b\"");
  // X.680 (2002) 11.14.1: the line end goes with the blanks around it.
  EXPECT_EQ(cstringText("ab \t\n  cd"), "abcd");
  EXPECT_EQ(cstringText("a \r\n\r\n b"), "ab");
  EXPECT_EQ(cstringText(" a b "), " a b ");
  EXPECT_EQ(cstringText("\xC3\xA9"), "\xC3\xA9");
}

TEST(AsnLexer, Comments)
{
  static const LexRow rows[] = {
      {"a -- b\nc", "lower<a> lower<c>"},
      {"a -- b -- c", "lower<a> lower<c>"},
      {"a ---- c", "lower<a> lower<c>"},
      {"a -- b - c --d", "lower<a> lower<d>"},
      {"a --\"-- b", "lower<a> lower<b>"},
      {"a /* b\n */ c", "lower<a> lower<c>"},
      {"a /* /* b */ c */ d", "lower<a> lower<d>"},
      {"a /* -- */ d", "lower<a> lower<d>"},
      {"a -- /* \n d", "lower<a> lower<d>"},
      {"a\n /* /* */ d", "lower<a>#2:2 the comment does not end"},
      {"a */", "lower<a> sign<*> sign</>"},
  };
  checkRows(rows);
}

TEST(AsnLexer, Junk)
{
  static const LexRow rows[] = {
      {"a $%# b", "lower<a> lower<b>#1:3 unexpected character \"$\""},
      {"a \x01\x80 b", "lower<a> lower<b>#1:3 unexpected character 0x01"},
      {"$a$", "lower<a>#1:1 unexpected character \"$\"#1:3 unexpected "
              "character \"$\""},
      {"", ""},
  };
  checkRows(rows);
  EXPECT_EQ(LexRun(std::string("a\0b", 3)).shown(),
            "lower<a> lower<b>#1:2 unexpected character 0x00");
}

TEST(AsnLexer, Places)
{
  LexRun run("ab c\n  &d\r\n\te\r'0'B\n-- x\n\"\n\" f");
  static const int places[][2] = {{1, 1}, {1, 4}, {2, 3}, {3, 2},
                                  {4, 1}, {6, 1}, {7, 3}, {7, 4}};
  ASSERT_EQ(run.source.tokens.size(), std::size(places));
  for (size_t i = 0; i < std::size(places); i++) {
    EXPECT_EQ(run.token(i).line, places[i][0]) << i;
    EXPECT_EQ(run.token(i).column, places[i][1]) << i;
  }
  run.source.file = 3;
  AsnPos pos = tokenPos(run.source, run.token(1));
  EXPECT_EQ(pos.file, 3);
  EXPECT_EQ(pos.column, 4);
}

TEST(AsnLexer, ByteOrderMark)
{
  LexRun run("\xEF\xBB\xBF"
             "ab");
  EXPECT_EQ(run.shown(), "lower<ab>");
  EXPECT_EQ(run.token(0).column, 1);
  EXPECT_EQ(LexRun("a\xEF\xBB\xBF").errors.errors.size(), 1u);
}

TEST(AsnLexer, Keywords)
{
  LexRun run("SEQUENCE UTF8String TYPE-IDENTIFIER Sequence size &SIZE WITH");
  static const AsnKeyword expected[] = {
      KW_SEQUENCE, KW_UTF8_STRING, KW_TYPE_IDENTIFIER, KW_NONE, KW_NONE,
      KW_NONE,     KW_WITH};
  for (size_t i = 0; i < std::size(expected); i++)
    EXPECT_EQ(run.token(i).keyword, expected[i]) << i;
}

TEST(AsnLexer, Partners)
{
  LexRun run("{ ( [ ] ) } )");
  EXPECT_EQ(run.token(0).partner, 5);
  EXPECT_EQ(run.token(1).partner, 4);
  EXPECT_EQ(run.token(2).partner, 3);
  EXPECT_EQ(run.token(3).partner, -1);

  // The "(" has lost its partner; what is around and behind it has not.
  LexRun broken("{ ( { } } {");
  EXPECT_EQ(broken.token(0).partner, 4);
  EXPECT_EQ(broken.token(1).partner, -1);
  EXPECT_EQ(broken.token(2).partner, 3);
  EXPECT_EQ(broken.token(5).partner, -1);
}

TEST(AsnLexer, Annotations)
{
  LexRun run("a --$ x y=1 --b --$z=\"p q\"\n--$ e= f=\"\"\n-- $ no\n--$\nc");
  EXPECT_EQ(run.shown(), "lower<a> lower<b> lower<c>");
  ASSERT_EQ(run.source.notes.size(), 3u);
  EXPECT_EQ(run.noteText(0), "(x)(y=1)");
  EXPECT_EQ(run.noteText(1), "(z=p q)");
  EXPECT_EQ(run.noteText(2), "(e=)(f=)");
  EXPECT_EQ(run.source.notes[0].before, 1);
  EXPECT_EQ(run.source.notes[1].before, 2);
  EXPECT_EQ(run.source.notes[2].before, 2);
  EXPECT_EQ(run.source.notes[0].words[1].pos.column, 9);
  EXPECT_EQ(run.source.notes[2].words[0].pos.line, 2);
  EXPECT_EQ(LexRun("a -- x\n/*$ y */").source.notes.size(), 0u);
}

TEST(AsnLexer, BrokenAnnotations)
{
  // A comment ends at "--" even in quotes.
  LexRun open("--$ a=\"b--\nc \"d\"");
  EXPECT_EQ(open.shown(), "lower<c> cstring<d>#1:7 the quoted value of "
                          "annotation \"a\" does not end");
  EXPECT_EQ(open.noteText(0), "(a=b)");

  LexRun empty("--$ a =b c");
  EXPECT_EQ(empty.shown(), "#1:7 annotation without a word");
  EXPECT_EQ(empty.noteText(0), "(a)(c)");
}

TEST(AsnLexer, TokenShown)
{
  LexRun run("Ab &c ::= 'AF'H");
  EXPECT_EQ(tokenShown(run.token(0)), "\"Ab\"");
  EXPECT_EQ(tokenShown(run.token(1)), "\"&c\"");
  EXPECT_EQ(tokenShown(run.token(2)), "\"::=\"");
  EXPECT_EQ(tokenShown(run.token(3)), "\"AF\"");
  EXPECT_EQ(tokenShown(run.token(4)), "the end of the file");
}
