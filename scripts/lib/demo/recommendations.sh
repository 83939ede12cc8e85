# Recommendations: what the kit says that a host would show.

preview_recommendations() {
  local document=examples/vendor-site/store/recommender_US_en.json list
  chapter "What Photo Tool recommends to a user who has it, Scan Bench and an address book"
  list=$("$prefix/bin/wrenvale" preview "$document" --bundle-id com.example.phototool --build 1204 \
    --installed com.example.phototool,com.example.scanbench,com.example.addressbook --seed 1) ||
    fail "the document has no preview"
  show "wrenvale preview" "$list"
  [ "$(sed -n 's/^[0-9]*\. \(.*\) (.*/\1/p' <<<"$list" | paste -sd,)" = \
    "Lamplight,Skylight,Frame House,Film Clerk" ] || fail "the list should be another"
}
