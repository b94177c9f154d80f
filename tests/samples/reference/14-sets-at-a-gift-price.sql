select p.ProductName, (select k.CategoryName from Categories as k where k.CategoryID = p.CategoryID), p.ListPrice
from Products as p
where p.ListPrice >= 10 and p.ListPrice <= 30
  and (instr(lower(p.ProductName), 'set') > 0 or lower(substr(p.ProductName, -3)) = 'pcs')
order by p.ProductName
