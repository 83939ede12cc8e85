# Ratings: each way of asking, and what is on record of the answer.

# Fails unless the settings about ratings are these, whatever the dates.
expect_ratings() { # line...
  local now
  now=$(settings_now | grep '^\(Rate Version\|Version \)' || true)
  show "On record" "$now"
  [ "$(sed 's/Date: [^,]*/Date: */g' <<<"$now")" = "$(printf '%s\n' "$@")" ] ||
    fail "this should be on record: $(printf '\n    %s' "$@")"
}

record() { # history, whether triggered
  echo "Version Ratings = {1204: [{Date: *, History: [$1], Triggered: $2}]}"
}

# Users of a build that was launched before, so that no welcome window is owed.
settled_user() {
  new_user
  run_photo_tool 1204 --do welcome,close-welcome,quit
}

asked_over_window() {
  chapter "Asked over Photo Tool's window: likes it, goes to the store"
  settled_user
  user_of 1204 ask-over-window picture=rating-neutral hover-dislike picture=rating-hover-dislike \
    hover-like picture=rating-hover-like like picture=rating-like store status
  expect_opened macappstore://
  expect_ratings "$(record "1, 3" false)"
  say "Liked (1), went to the store (3). The session was over before the trigger could mark it, so" \
    "it does not count as triggered. This build will not ask again:"
  user_of 1204 ask status
  show "Status bar" "$(status_bar)"
  expect_ratings "$(record "1, 3" false)"
}

asked_free_standing() {
  chapter "Asked by a window that stands freely: dislikes it, contacts the maker"
  settled_user
  user_of 1204 ask picture=rating-free dislike picture=rating-dislike contact status
  expect_opened http
  expect_ratings "$(record "2, 4" true)"
  say "Disliked (2), contacted support (4). The window was still open when the trigger marked it."
}

asked_by_alert() {
  chapter "Asked by an alert: declines"
  settled_user
  user_of 1204 ask-with-alert picture=rating-alert alert-no status
  expect_ratings "Rate Version = 1204" "$(record 0 true)"
  say "Dismissed (0); an alert's record always counts as triggered, and the build that showed the" \
    "alert was noted before it appeared."
}

asked_on_third_export() {
  chapter "Asked on the third export: closes the window"
  settled_user
  user_of 1204 export status
  expect_ratings "Version Counters = {1204: 1}"
  user_of 1204 export export close export status
  show "Status bar" "$(status_bar)"
  expect_ratings "Version Counters = {1204: 4}" "$(record 0 false)"
  say "The count goes on over all runs of a build; only the third of the four exports asked, and" \
    "the window was closed without an answer (0)."
}
