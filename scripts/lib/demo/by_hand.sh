# The tour by hand: a person clicks, and is told afterwards what came of it.

wait_for_person() { # build
  local speaking
  speaking=$(callers_locale)
  mark_log
  run_photo_tool "$1"
  show "Requests that the server saw" "$(requests_since_mark)"
  show "Settings now" "$(settings_now)"
}

tour_by_hand() {
  new_user
  chapter "Your first launch"
  say "The welcome window comes up. Then try: Ratings > Ask Over This Window; Help > the maker's" \
    "entries, among them the newsletter. Quit Photo Tool to go on. (Addresses are not opened but" \
    "noted in build/demo/opened.log.)"
  wait_for_person 1204
  chapter "After an update"
  say "Build 1205 comes; its window is owed because the server says so. Quit to end the tour."
  wait_for_person 1205
  show "wrenvale inbox" "$("$prefix/bin/wrenvale" inbox --inbox "$inbox")"
}
