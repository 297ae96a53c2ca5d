#include "media/source_info.h"

#include <memory>
#include <string>

#include "foundation/required_text.h"
#include "media/umid.h"

namespace Korvane::Media {
namespace {

// The new one comes in before the old one goes: `id` may be the old one.
void keep_copy(std::unique_ptr<Umid>& held, const Umid& id) { held = std::make_unique<Umid>(id); }

}  // namespace

// The members end in reverse: the source, master and tape identifiers, then the tape name.
struct SourceInfoPrivate {
  IUmidInfo::UmidKind umid_kind;
  std::wstring tape_name;
  std::unique_ptr<Umid> tape_mob_id;
  std::unique_ptr<Umid> master_mob_id;
  std::unique_ptr<Umid> source_mob_id;
};

SourceInfo::SourceInfo(IUmidInfo::UmidKind kind)
    : private_(new SourceInfoPrivate{kind, {}, {}, {}, {}}) {}

SourceInfo::~SourceInfo() = default;

IUmidInfo::UmidKind SourceInfo::umid_kind() { return private_->umid_kind; }

const Umid* SourceInfo::tape_mob_id() const { return private_->tape_mob_id.get(); }
void SourceInfo::tape_mob_id(const Umid& id) { keep_copy(private_->tape_mob_id, id); }
bool SourceInfo::has_tape_mob_id() const { return private_->tape_mob_id != nullptr; }

const Umid* SourceInfo::master_mob_id() const { return private_->master_mob_id.get(); }
void SourceInfo::master_mob_id(const Umid& id) { keep_copy(private_->master_mob_id, id); }
bool SourceInfo::has_master_mob_id() const { return private_->master_mob_id != nullptr; }

const Umid* SourceInfo::source_mob_id() const { return private_->source_mob_id.get(); }
void SourceInfo::source_mob_id(const Umid& id) { keep_copy(private_->source_mob_id, id); }
bool SourceInfo::has_source_mob_id() const { return private_->source_mob_id != nullptr; }

void SourceInfo::tape_name(const wchar_t* name) { private_->tape_name = required_text(name); }
const wchar_t* SourceInfo::tape_name() const { return private_->tape_name.c_str(); }
bool SourceInfo::has_tape_name() const { return !private_->tape_name.empty(); }

}  // namespace Korvane::Media
