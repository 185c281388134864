#include "AddressBookUI/Words.h"

#include "host/Device.h"
#include "host/SystemText.h"
#include "host/Text.h"

namespace {

constexpr host::SystemWord kWords[] = {
    {"All Contacts",
     {"所有联系人", "所有聯絡人", "すべての連絡先", "모든 연락처", "Alle Kontakte", "Tous les contacts",
      "Todos los contactos", "Все контакты"}},
    {"Info", {"简介", "簡介", "情報", "정보", "Info", "Infos", "Información", "Инфо"}},
    {"No Contacts",
     {"无联系人", "沒有聯絡人", "連絡先なし", "연락처 없음", "Keine Kontakte", "Aucun contact",
      "Sin contactos", "Нет контактов"}},
    {"No Results",
     {"无结果", "沒有結果", "結果なし", "결과 없음", "Keine Ergebnisse", "Aucun résultat", "Sin resultados",
      "Нет результатов"}},
    {"No Name",
     {"无姓名", "沒有姓名", "名前なし", "이름 없음", "Kein Name", "Sans nom", "Sin nombre", "Без имени"}},
    {"Contacts Cannot Be Read",
     {"无法读取通讯录", "無法讀取聯絡人", "連絡先を読み込めません", "연락처를 읽을 수 없음",
      "Kontakte können nicht gelesen werden", "Impossible de lire les contacts",
      "No se pueden leer los contactos", "Не удается прочитать контакты"}},
};

} // namespace

NSString *host::pickerWord(std::string_view english) {
    return string(std::string(wordIn(kWords, english, device().language)));
}
