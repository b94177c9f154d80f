select p.ProductName, k.CategoryName, p.ListPrice
from Products as p
join Categories as k on k.CategoryID = p.CategoryID
where (k.CategoryName like '% tools' or k.CategoryName = 'Lighting')
  and exists (
    select *
    from Returns as r
    join "Order Lines" as l on l.OrderID = r.OrderID and l.LineNo = r.LineNo
    where l.ProductID = p.ProductID and r.Reason = 'Damaged' and r.ReturnedOn >= '2025-01-01')
order by p.ProductName
