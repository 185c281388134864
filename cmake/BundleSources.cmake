# The bundle's sources, folder by folder: the one list that every build of the bundle reads.
# Pieces need no page and are linked to tests, fuzzers and benchmarks too; pages are the classes
# that the Settings application makes by name.

set(ZV_PIECE_SOURCES
  databases/CallHistory.cpp
  databases/ContactSource.mm
  databases/Database.cpp
  databases/DialableForm.cpp
  databases/DisplayName.mm
  databases/KnownNumbers.mm
  databases/LabelTexts.mm
  databases/MomentText.mm
  databases/RecentCallSource.mm
  databases/Statement.cpp
  databases/Utf8.cpp
  databases/ZVPickerRecord.mm
  listeditor/ListDocument.mm
  listeditor/SortedKeys.mm
)

set(ZV_PAGE_SOURCES
  listeditor/EditorSetup.mm
  listeditor/ListCells.mm
  listeditor/ZVSettingsCustomViewController.mm
  pickers/ZVSettingsEditNumberViewController.mm
  pickers/ZVSettingsSelectCallHistoryViewController.mm
  pickers/ZVSettingsSelectContactsViewController.mm
  rootpage/MyInfo.mm
  rootpage/SupportLinks.mm
  rootpage/ZelvoraSettingsController.mm
  rootpage/ZelvoraSettingsController+CallHistory.mm
  rootpage/ZelvoraSettingsController+Catalogs.mm
  rootpage/ZelvoraSettingsController+MyInfo.mm
  rootpage/ZelvoraSettingsController+Vibration.mm
  settings/Notifications.mm
  settings/SharedState.mm
  settings/ZVSettingsViewController.mm
)
