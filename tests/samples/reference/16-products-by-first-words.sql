select p.ProductName, k.CategoryName, p.Discontinued
from Products as p
join Categories as k on k.CategoryID = p.CategoryID and k.CategoryName <> 'Kitchen'
where not p.Discontinued
  and (lower(substr(p.ProductName, 1, 6)) = 'garden' or lower(substr(p.ProductName, 1, 1)) = 'c')
order by p.ProductName
