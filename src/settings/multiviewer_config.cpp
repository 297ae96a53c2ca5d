#include "media/multiviewer_config.h"

#include <string>

#include "foundation/required_text.h"

namespace Korvane::Media {

struct MultiviewerConfigPrivate {
  std::wstring server_address;
  int port = 0;
  int width = 1920;
  int height = 1080;
  Rational32 edit_rate = {0, 1};
  bool keep_aspect_ratio = false;
};

MultiviewerConfig::MultiviewerConfig() : private_(new MultiviewerConfigPrivate) {}

MultiviewerConfig::MultiviewerConfig(const wchar_t* server_address, int port, int width, int height,
                                     Rational32 edit_rate, bool keep_aspect_ratio)
    : private_(new MultiviewerConfigPrivate{required_text(server_address), port, width, height,
                                            edit_rate, keep_aspect_ratio}) {}

MultiviewerConfig::MultiviewerConfig(const MultiviewerConfig& other) = default;

MultiviewerConfig& MultiviewerConfig::operator=(const MultiviewerConfig& other) = default;

MultiviewerConfig::~MultiviewerConfig() = default;

const wchar_t* MultiviewerConfig::server_address() const {
  return private_->server_address.c_str();
}

int MultiviewerConfig::port() const { return private_->port; }

int MultiviewerConfig::width() const { return private_->width; }

int MultiviewerConfig::height() const { return private_->height; }

bool MultiviewerConfig::keep_aspect_ratio() const { return private_->keep_aspect_ratio; }

Rational32 MultiviewerConfig::edit_rate() { return private_->edit_rate; }

bool MultiviewerConfig::operator==(const MultiviewerConfig& other) {
  const MultiviewerConfigPrivate& mine = *private_;
  const MultiviewerConfigPrivate& theirs = *other.private_;
  return mine.port == theirs.port && mine.server_address == theirs.server_address &&
         mine.width == theirs.width && mine.height == theirs.height &&
         mine.edit_rate.numerator == theirs.edit_rate.numerator &&
         mine.edit_rate.denominator == theirs.edit_rate.denominator &&
         mine.keep_aspect_ratio == theirs.keep_aspect_ratio;
}

bool MultiviewerConfig::operator!=(const MultiviewerConfig& other) { return !operator==(other); }

}  // namespace Korvane::Media
