# The newsletter: from the Help menu to the maker's inbox.

subscribe_to_newsletter() {
  local address=ada.lovelace+photos@mail.example.com
  chapter "Subscribing to the newsletter"
  settled_user
  mark_log
  user_of 1204 newsletter welcome picture=newsletter "type=ada@nowhere" submit see-alert \
    picture=newsletter-refused accept "type=$address" submit picture=newsletter-thanks \
    close-welcome
  show "Requests that the server saw" "$(requests_since_mark)"
  show "wrenvale inbox" "$("$prefix/bin/wrenvale" inbox --inbox "$inbox")"
  [ "$("$prefix/bin/wrenvale" inbox --inbox "$inbox" | grep -c .)" -ge 1 ] &&
    "$prefix/bin/wrenvale" inbox --inbox "$inbox" | grep -qF "$address" ||
    fail "the address should be in the inbox"
  say "An address that cannot be one was refused on the spot. The other left the machine encrypted" \
    "for the maker's key; the development server has the key's other half."
}
