# Other languages: the Help menu in every one that Wrenvale brings, everything else in the caller's.

help_menu() {
  local locale
  chapter "The Help menu"
  settled_user
  for locale in en_US de_DE fr_FR ja_JP ar_EG; do
    speaking=$locale user_of 1204 "picture-menu=help-menu-$locale" help-menu=moreAppsAction
    expect_opened "$vendor_base"/app_redirect/moreapps_
  done
  say "Photo Tool brings the first two entries, Wrenvale the others; the application's name stands" \
    "where the host's own menus said #app_name. The texts are the host's translations, for which" \
    "Wrenvale ships German, French, Japanese and Arabic."
}

# German, when the caller's own language is English. The example maker has pages for a few countries.
another_language() {
  local speaking steps=()
  speaking=$(callers_locale)
  speaking=${speaking:-de_DE}
  chapter "A user of the locale $speaking"
  new_user
  if [ -f "examples/vendor-site/store/newsletter/index_${speaking#*_}.html" ]; then
    steps=(welcome "picture=welcome-$speaking" close-welcome newsletter welcome type=ada@nowhere
      submit see-alert "picture=newsletter-refused-$speaking" accept close-welcome)
  else
    say "The maker has no page for this country, so no welcome window comes up."
  fi
  user_of 1204 "${steps[@]}" ask-over-window "picture=rating-$speaking" like \
    "picture=rating-like-$speaking" close
  say "The country chooses the maker's page, and the page the language that the user prefers."
}
