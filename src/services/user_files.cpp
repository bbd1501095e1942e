#include "services/user_files.h"

namespace onze {

std::optional<std::vector<std::byte>> UserFiles::Read(std::string_view name) {
    return IsOwn(name) ? own_.Read(name) : datas_.Read(name);
}

bool UserFiles::Replace(std::string_view name, std::span<const std::byte> bytes) {
    const bool in_place = datas_.Replace(name, bytes);
    const bool kept = in_place && (!own_.Has(name) || own_.Remove(name));
    failed_ = !kept && !own_.Replace(name, bytes);
    return !failed_;
}

std::string UserFiles::PlaceOf(std::string_view name) const {
    return failed_ || IsOwn(name) ? own_.PlaceOf(name) : datas_.PlaceOf(name);
}

}  // namespace onze
