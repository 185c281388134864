#include "AddressBook/Labels.h"

#include "host/SystemText.h"

#include <algorithm>

namespace host {
namespace {

constexpr std::string_view kOpening = "_$!<", kClosing = ">!$_";

struct Label {
    std::string_view stored; ///< between the marks
    SystemWord shown;
};

constexpr Label kLabels[] = {
    {"Mobile", {"mobile", {"手机", "手機", "携帯電話", "휴대전화", "Mobil", "mobile", "móvil", "мобильный"}}},
    {"Home", {"home", {"住宅", "住家", "自宅", "집", "Privat", "domicile", "casa", "домашний"}}},
    {"Work", {"work", {"工作", "公司", "勤務先", "직장", "Arbeit", "bureau", "trabajo", "рабочий"}}},
    {"Main", {"main", {"主要", "主要", "代表", "대표", "Zentrale", "principal", "principal", "основной"}}},
    {"HomeFAX",
     {"home fax",
      {"住宅传真", "住家傳真", "自宅Fax", "집 팩스", "Fax privat", "fax domicile", "fax casa",
       "домашний факс"}}},
    {"WorkFAX",
     {"work fax",
      {"工作传真", "公司傳真", "勤務先Fax", "직장 팩스", "Fax Arbeit", "fax bureau", "fax trabajo",
       "рабочий факс"}}},
    {"OtherFAX",
     {"other fax",
      {"其他传真", "其他傳真", "その他のFax", "기타 팩스", "Anderes Fax", "autre fax", "otro fax",
       "другой факс"}}},
    {"Pager",
     {"pager", {"传呼", "呼叫器", "ポケベル", "호출기", "Pager", "pager", "localizador", "пейджер"}}},
    {"Other", {"other", {"其他", "其他", "その他", "기타", "Andere", "autre", "otro", "другой"}}},
    {"HomePage",
     {"home page",
      {"主页", "首頁", "ホームページ", "홈페이지", "Homepage", "page d’accueil", "página de inicio",
       "домашняя страница"}}},
};

} // namespace

std::string localizedLabel(std::string_view label, std::string_view language) {
    const bool marked = label.size() >= kOpening.size() + kClosing.size() && label.starts_with(kOpening) &&
                        label.ends_with(kClosing);
    if (!marked)
        return std::string(label);
    label.remove_prefix(kOpening.size());
    label.remove_suffix(kClosing.size());
    const auto *known = std::find_if(std::begin(kLabels), std::end(kLabels),
                                     [&](const Label &each) { return each.stored == label; });
    if (known == std::end(kLabels))
        return std::string(label);
    return std::string(wordIn({&known->shown, 1}, known->shown.english, language));
}

} // namespace host
