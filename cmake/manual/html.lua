-- Pandoc filter for the pages of HTML.

-- Links between the pages' sources lead from page to page.
function Link(link)
  for _, name in ipairs({ "manual", "lint" }) do
    link.target = link.target:gsub("^" .. name .. "%.md", name .. ".html")
  end
  return link
end
