# The Help menu, in every language that Wrenvale brings and in the caller's.

help_menu() {
  local locale
  chapter "The Help menu"
  settled_user
  for locale in en_US de_DE fr_FR ja_JP ar_EG "${LC_ALL:-${LANG:-en_US}}"; do
    speaking=${locale%%.*} user_of 1204 "picture-menu=help-menu-${locale%%.*}" \
      help-menu=moreAppsAction
    expect_opened http://127.0.0.1:47210/app_redirect/moreapps_
  done
  say "Photo Tool brings the first two entries, Wrenvale the others; the application's name stands" \
    "where the host's own menus said #app_name. The texts are the host's translations, for which" \
    "Wrenvale ships German, French, Japanese and Arabic."
}
