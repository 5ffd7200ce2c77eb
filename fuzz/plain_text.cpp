#include "plain_text.h"

namespace norvik::fuzz {

void PlainText::passBlanks() {
  while (!atEnd() && (text_[at_] == ' ' || text_[at_] == '\t')) ++at_;
}

void PlainText::passLineEnd() {
  if (atEnd()) return;
  const char c = text_[at_++];
  if (c == '\r' && !atEnd() && text_[at_] == '\n') ++at_;
}

std::string PlainText::line() {
  if (atEnd()) throw kPastEnd;
  std::string result;
  while (!ends()) result += text_[at_++];
  passLineEnd();
  lineStart_ = true;
  return result;
}

std::string PlainText::field() {
  if (atEnd()) throw kPastEnd;
  passBlanks();
  lineStart_ = false;
  std::string result;
  if (!atEnd() && text_[at_] == '"') {
    ++at_;
    while (!atEnd() && text_[at_] != '"') result += text_[at_++];
    if (atEnd()) return result;
    ++at_;
    const std::size_t behindQuote = at_;
    passBlanks();
    if (!ends() && text_[at_] != ',') at_ = behindQuote;
  } else {
    while (!ends() && text_[at_] != ',') result += text_[at_++];
  }
  if (atEnd()) return result;
  if (text_[at_] == ',') {
    ++at_;
  } else if (ends()) {
    passLineEnd();
    lineStart_ = true;
  }
  return result;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  PlainText in(text);
  while (!in.atEnd()) lines.push_back(in.line());
  return lines;
}

std::string withLineEnds(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

}  // namespace norvik::fuzz
