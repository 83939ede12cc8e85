# Launches: what each asks of the server and leaves in the settings.

# Launches a build, with its steps, and tells what it asked for and what it changed. Leaves both in
# `requests` and `changes` ("+ key = value", "- key = value").
launch() { # build, step...
  local before after
  before=$(settings_now)
  mark_log
  user_of "$@"
  after=$(settings_now)
  requests=$(requests_since_mark)
  changes=$(diff --old-line-format='- %L' --new-line-format='+ %L' --unchanged-line-format= \
    <(printf '%s' "${before:+$before$'\n'}") <(printf '%s' "${after:+$after$'\n'}") || true)
  show "Requests that the server saw" "$requests"
  show "Settings before" "$before"
  show "Settings after" "$after"
  show "Changes" "$changes"
}

# That the server saw these, whatever else it saw.
expect_requests() { # "STATUS PATH"...
  local wanted
  for wanted in "$@"; do
    [[ $'\n'$requests == *" ${wanted% *} GET ${wanted#* } "* ]] ||
      fail "the server should have seen: $wanted"
  done
}

# That nothing but the reset document was asked for, once, as this build.
expect_reset_request_only() { # build
  local wanted="^[^\"]* 200 GET /store/reset_US_en\\.json \"Photo Tool/$1 123456789 Darwin/[^\"]*\"\$"
  [[ $(wc -l <<<"$requests") -eq 1 && $requests =~ $wanted ]] ||
    fail "the launch should have asked for the reset document, once, as build $1"
}

expect_changes() { # line...
  [ "$changes" = "$(printf '%s\n' "$@")" ] ||
    fail "the launch should have changed exactly this: $(printf '\n    %s' "$@")"
}

first_launch() {
  chapter "First launch: the welcome window"
  new_user
  launch 1204 welcome picture=welcome close-welcome
  expect_requests "200 /store/reset_US_en.json" "200 /store/recommender_US_en_F.json" \
    "200 /store/newsletter/index_US.html"
  expect_changes "+ Recommender Last Version = 1204" "+ Recommender Reset Number = 3"
  say "It is the first run, so the maker's page is owed. The page loads out of sight, is given the" \
    "ranked applications and shows its window when it is ready. The reset document's generation is" \
    "noted, and forces nothing open."
}

normal_launch() {
  chapter "Normal launch: nothing"
  launch 1204 picture=normal-launch
  expect_reset_request_only 1204
  expect_changes ""
  say "One question to the server, no window, no setting changed."
}

update_launch() {
  chapter "Launch after an update: the server asks for the window"
  launch 1205 see-alert picture=update-thank-you accept welcome close-welcome
  expect_requests "200 /store/recommender_US_en_U.json"
  expect_changes "- Recommender Last Version = 1204" "+ Recommender Last Version = 1205"
  expect_opened http
  say "The best application that has something to say to users who update says it in an alert, whose" \
    "button leads to the offer."
  say "The build has changed and the reset document says \"auto\" for it, so the window was owed once" \
    "more; now that the user has closed it, it is not."
}

launch_without_server() {
  chapter "First launch while the server is away"
  new_user
  stop_server
  user_of 1204 picture=server-away
  show "Settings after" "$(settings_now)"
  say "The page could not be fetched while its window was still hidden, so the user saw nothing of it."
  start_server
}
