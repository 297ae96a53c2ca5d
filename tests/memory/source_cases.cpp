#include "memory/case_list.h"

namespace Korvane::MemoryTests {
namespace {

using Media::IUmidInfo;
using Media::SourceInfo;
using Media::Umid;

const wchar_t* const kOldId = L"060a2b340101010501010d4313000000d927956e4f1c41baa03b7e82c560f819";
const wchar_t* const kNewId = L"060a2b340101010501010d4313000000ffffffffffffffffffffffffffffffff";
const wchar_t* const kOldName = L"a name that is too long for a short buffer";
const wchar_t* const kNewName = L"another name that is too long for the buffer of the former one";

struct Identifiers final : IUmidInfo {
  UmidKind umid_kind() override { return static_cast<UmidKind>(0); }
  const Umid* tape_mob_id() const override { return nullptr; }
  void tape_mob_id(const Umid& /*id*/) override {}
  const Umid* master_mob_id() const override { return nullptr; }
  void master_mob_id(const Umid& /*id*/) override {}
  const Umid* source_mob_id() const override { return nullptr; }
  void source_mob_id(const Umid& /*id*/) override {}
};

void add_umid(Cases& cases) {
  ClassCases umid(cases, [] { return Umid(kOldId); });
  umid.constructor<const wchar_t*>(kNewId);
  umid.constructor<const wchar_t*>(L"060");
  umid.constructor<const wchar_t*>(nullptr);
  umid.copying([] { return Umid(kNewId); });
  umid.getter("value", &Umid::value);
  umid.getter("c_str", &Umid::c_str);
  umid.method("operator[]", static_cast<unsigned char& (Umid::*)(int)>(&Umid::operator[]), 3);
  umid.method("operator[]", static_cast<unsigned char (Umid::*)(int) const>(&Umid::operator[]), 3);
}

struct FilledSourceInfo : SourceInfo {
  FilledSourceInfo() : SourceInfo(static_cast<IUmidInfo::UmidKind>(1)) {
    tape_name(kOldName);
    tape_mob_id(Umid(kOldId));
    master_mob_id(Umid(kOldId));
    source_mob_id(Umid(kOldId));
  }
};

void add_source_info(Cases& cases) {
  static const Umid id(kNewId);
  ClassCases info(cases, [] { return FilledSourceInfo(); });
  info.operation(constructor_name<SourceInfo, IUmidInfo::UmidKind>(), [](SourceInfo& /*unused*/) {
    const SourceInfo made(static_cast<IUmidInfo::UmidKind>(2));
  });
  info.getter("umid_kind", &SourceInfo::umid_kind);
  info.getter("tape_mob_id", &SourceInfo::tape_mob_id);
  info.getter("master_mob_id", &SourceInfo::master_mob_id);
  info.getter("source_mob_id", &SourceInfo::source_mob_id);
  info.getter("has_tape_mob_id", &SourceInfo::has_tape_mob_id);
  info.getter("has_master_mob_id", &SourceInfo::has_master_mob_id);
  info.getter("has_source_mob_id", &SourceInfo::has_source_mob_id);
  info.property("tape_name", &SourceInfo::tape_name, &SourceInfo::tape_name, kNewName);
  info.getter("has_tape_name", &SourceInfo::has_tape_name);
  info.operation(member_name<SourceInfo, const Umid&>("tape_mob_id"),
                 [](SourceInfo& changed) { changed.tape_mob_id(id); });
  info.operation(member_name<SourceInfo, const Umid&>("master_mob_id"),
                 [](SourceInfo& changed) { changed.master_mob_id(id); });
  info.operation(member_name<SourceInfo, const Umid&>("source_mob_id"),
                 [](SourceInfo& changed) { changed.source_mob_id(id); });
  info.operation(destructor_name<SourceInfo>(), [](SourceInfo& /*unused*/) {
    const SourceInfo made(static_cast<IUmidInfo::UmidKind>(2));
  });
}

}  // namespace

void add_source_cases(Cases& cases) {
  add_umid(cases);
  add_source_info(cases);
  add_interface_cases<IUmidInfo, Identifiers>(cases);
}

}  // namespace Korvane::MemoryTests
