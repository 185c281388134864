#include "host/SystemText.h"

#include "host/Device.h"

#include <algorithm>
#include <array>

namespace host {
namespace {

constexpr std::array<std::string_view, 8> kLanguages = {"zh-Hans", "zh-Hant", "ja", "ko",
                                                        "de",      "fr",      "es", "ru"};

constexpr SystemWord kWords[] = {
    {"Done", {"完成", "完成", "完了", "완료", "Fertig", "OK", "OK", "Готово"}},
    {"Cancel", {"取消", "取消", "キャンセル", "취소", "Abbrechen", "Annuler", "Cancelar", "Отменить"}},
    {"Edit", {"编辑", "編輯", "編集", "편집", "Bearbeiten", "Modifier", "Editar", "Изменить"}},
    {"Save", {"存储", "儲存", "保存", "저장", "Sichern", "Enregistrer", "Guardar", "Сохранить"}},
    {"Delete", {"删除", "刪除", "削除", "삭제", "Löschen", "Supprimer", "Eliminar", "Удалить"}},
    {"Back", {"返回", "返回", "戻る", "뒤로", "Zurück", "Retour", "Atrás", "Назад"}},
    {"Search", {"搜索", "搜尋", "検索", "검색", "Suchen", "Rechercher", "Buscar", "Поиск"}},
    {"Add", {"添加", "加入", "追加", "추가", "Hinzufügen", "Ajouter", "Añadir", "Добавить"}},
    {"Share", {"共享", "分享", "共有", "공유", "Teilen", "Partager", "Compartir", "Поделиться"}},
    {"Compose", {"撰写", "編寫", "作成", "작성", "Verfassen", "Écrire", "Redactar", "Написать"}},
    {"Reply", {"回复", "回覆", "返信", "답장", "Antworten", "Répondre", "Responder", "Ответить"}},
    {"Organize", {"整理", "整理", "整理", "정리", "Ordnen", "Organiser", "Organizar", "Упорядочить"}},
    {"Bookmarks",
     {"书签", "書籤", "ブックマーク", "책갈피", "Lesezeichen", "Signets", "Marcadores", "Закладки"}},
    {"Refresh",
     {"刷新", "更新", "更新", "새로 고침", "Aktualisieren", "Actualiser", "Actualizar", "Обновить"}},
    {"Stop", {"停止", "停止", "停止", "중단", "Stoppen", "Arrêter", "Detener", "Остановить"}},
    {"Camera", {"相机", "相機", "カメラ", "카메라", "Kamera", "Appareil photo", "Cámara", "Камера"}},
    {"OK", {"好", "好", "OK", "확인", "OK", "OK", "OK", "OK"}},
    {"Undo", {"撤销", "還原", "取り消す", "실행 취소", "Widerrufen", "Annuler", "Deshacer", "Отменить"}},
};

/// "zh-TW" and "zh-HK" are written in traditional characters; a region after the language does not matter
/// else.
std::string_view tableLanguage(std::string_view language) {
    if (language.starts_with("zh-TW") || language.starts_with("zh-HK"))
        return "zh-Hant";
    if (language.starts_with("zh"))
        return language.starts_with("zh-Hant") ? "zh-Hant" : "zh-Hans";
    return language.substr(0, language.find_first_of("-_"));
}

} // namespace

std::string_view wordIn(std::span<const SystemWord> words, std::string_view english,
                        std::string_view language) {
    const auto word = std::find_if(words.begin(), words.end(), [english](const SystemWord &candidate) {
        return candidate.english == english;
    });
    if (word == words.end())
        return english;
    const auto column = std::find(kLanguages.begin(), kLanguages.end(), tableLanguage(language));
    return column == kLanguages.end() ? word->english
                                      : word->other[static_cast<std::size_t>(column - kLanguages.begin())];
}

std::string systemText(std::string_view english) {
    return std::string(systemText(english, device().language));
}

std::string_view systemText(std::string_view english, std::string_view language) {
    return wordIn(kWords, english, language);
}

} // namespace host
