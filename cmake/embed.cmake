# Writes the bytes of INPUT into the C++ source OUTPUT, as the constant NAME of services/anim.h.
file(READ ${INPUT} hex HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
string(REGEX REPLACE "(................................................................................)" "\\1\n" bytes "${bytes}")
file(WRITE ${OUTPUT} "#include \"services/anim.h\"

namespace {
constexpr unsigned char kBytes[] = {
${bytes}};
}  // namespace

const std::span<const std::byte> onze::${NAME} = std::as_bytes(std::span(kBytes));
")
