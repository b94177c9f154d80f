-- param Word=in
select p.ProductName, p."Pack Size", p.ListPrice, p.Description
from Products as p
where p.ListPrice between 15 and 35 and p."Pack Size" <> 1 and instr(lower(p.ProductName), :Word) > 0
  and p.Description is not null and p.ListPrice * 2 >= p.PurchasePrice * 3
order by p.ProductName
