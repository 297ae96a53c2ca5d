# kv_exported_names(<variable> <file> elf|pe): the exported names listed in <file> for ELF, or as a
# Windows build has them: size_t is mangled otherwise there, and names of types are no symbols.
function(kv_exported_names variable file format)
  file(STRINGS ${file} names)
  if(format STREQUAL "pe")
    list(FILTER names EXCLUDE REGEX "^_ZTS")
    list(TRANSFORM names REPLACE "Em$" "Ey")
  endif()
  set(${variable} ${names} PARENT_SCOPE)
endfunction()
