# Writes a C++ source that holds the profile tables' CSV text, so the program
# carries its default library. Called with OUT (the .cpp) and DIR (the CSV folder).
set(tables ipe inp ipb ipbi CPE CPB navdani box)
set(body "// Generated from sections/profile_data/*.csv; edit those files instead.\n")
string(APPEND body "#include \"sections/embedded_profile_data.hpp\"\n\nnamespace qorvat::sections {\n\n")
string(APPEND body "const std::vector<EmbeddedCsv>& embedded_profile_csv() {\n  static const std::vector<EmbeddedCsv> tables = {\n")
foreach(table ${tables})
  file(READ "${DIR}/${table}.csv" csv)
  string(APPEND body "      {\"${table}\", R\"qorvatcsv(${csv})qorvatcsv\"},\n")
endforeach()
string(APPEND body "  };\n  return tables;\n}\n\n}  // namespace qorvat::sections\n")
file(WRITE "${OUT}" "${body}")
