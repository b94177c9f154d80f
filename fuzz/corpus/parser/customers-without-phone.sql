select c.Company, c.City as "Town", count(*)
from Customers c
  left join Orders o on o.CustomerID = c.CustomerID
where c.Phone is null
  and not (c.City like 'Wr%' or c.City in ('Linz', 'Lyon'))
group by c.Company, c.City
order by 3 desc, 2
