// ext/umid.h: an identifier from the text of one system to the forms of others.

#include <cstdio>

#include "ext/umid.h"

int main() {
  using namespace Korvane;

  const auto umid =
      Ext::parse_umid("0x060A2B340101010501010D2013000000D2C9036C8F195343AB7014D2D718BFDA");
  if (!umid) return 1;
  std::printf("%s\n%s\n%s, %u bytes\n", Ext::to_urn(*umid).c_str(), Ext::to_dotted(*umid).c_str(),
              Ext::is_basic(*umid) ? "basic" : "extended",
              static_cast<unsigned int>(Ext::size(*umid)));

  // As editing systems keep it: parts of the material number have their least byte first.
  std::printf("material in AAF:");
  const Ext::AafMobId mob_id = Ext::to_aaf_mob_id(*umid);
  for (std::size_t i = 16; i < mob_id.size(); ++i) std::printf(" %02X", mob_id[i]);
  std::printf("\nthe same again: %s\n",
              Ext::equal(*umid, Ext::from_aaf_mob_id(mob_id)) ? "yes" : "no");

  // Not a UMID, though Umid itself would take its digits.
  std::printf("\"not a UMID\" is %s\n", Ext::parse_umid("not a UMID") ? "one" : "none");
}
